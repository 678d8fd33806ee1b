// mui::MuTextHeadless: the marked-up text of the headless binding. Its pieces
// are measured with the headless text model, and the user's side for tests is
// a click at a point, which follows the link under it as the view would.
#pragma once

#include "mui/MarkupRuns.h"
#include "mui/MuText.h"
#include "mui/headless/MarkupMetricsHeadless.h"

namespace mui {

class MuTextHeadless : public MuText {
public:
  static MuText* make(MuContainer* parent, const char* name, const char* markup,
                      plat::Markup::LinkCallback* callback, bool selectable);

  /// The text laid out at the present width.
  MarkupRuns runs();
  /// The user clicks at `point`: a link there is followed.
  void clickAt(Point point);

protected:
  void textChanged() override;
  plat::Markup::Layout::Callback& markupMetrics() override { return metrics_; }

private:
  MuTextHeadless(MuContainer* parent, const char* name, plat::Markup::LinkCallback* callback,
                 bool selectable);

  // Measures only; the runs are placed by layOutMarkup.
  struct Metrics : MarkupMetricsHeadless {
    void drawText(const char*, const char*, const plat::Markup::Layout::Rect&,
                  std::int32_t) override {}
    void drawLink(const char*, const char*, const char*, const plat::Markup::Layout::Rect&,
                  std::int32_t) override {}
  };
  Metrics metrics_;
};

} // namespace mui
