// mui::MuTextQt: the marked-up text of the Qt binding, shown by a
// MarkupViewQt and measured in the same fonts. The widget is named by the
// text without its markup.
#pragma once

#include "mui/MuText.h"
#include "mui/qt/MarkupMetricsQt.h"

namespace mui {

class MarkupViewQt;

class MuTextQt : public MuText {
public:
  static MuText* make(MuContainer* parent, const char* name, const char* markup,
                      plat::Markup::LinkCallback* callback, bool selectable);

  void styleChanged() override;
  MarkupViewQt* view();

protected:
  void textChanged() override;
  plat::Markup::Layout::Callback& markupMetrics() override { return metrics_; }

private:
  MuTextQt(MuContainer* parent, const char* name, plat::Markup::LinkCallback* callback,
           bool selectable);

  MarkupMetricsQt metrics_;
};

} // namespace mui
