// mui::MarkupMetricsQt: measures the pieces of a marked-up text in the Qt
// binding's fonts: each markup style becomes the font of the toolkit's style
// of the same size, weight and flags. It only measures; a view places and
// paints the pieces.
#pragma once

#include "plat/MarkupLayout.h"

#include <QFont>
#include <QFontMetrics>

namespace mui {

class MarkupMetricsQt : public plat::Markup::Layout::Callback {
public:
  MarkupMetricsQt();

  /// The font of a markup style.
  static QFont fontOf(const plat::Markup::Style& style);

  void setStyle(const plat::Markup::Style& style, const char* href, const char* text) override;
  std::int32_t lineHeight() override { return metrics_.height(); }
  std::int32_t measure(const char* begin, const char* end) override;
  void drawText(const char*, const char*, const plat::Markup::Layout::Rect&,
                std::int32_t) override {}
  void drawLink(const char*, const char*, const char*, const plat::Markup::Layout::Rect&,
                std::int32_t) override {}

private:
  QFontMetrics metrics_;
};

} // namespace mui
