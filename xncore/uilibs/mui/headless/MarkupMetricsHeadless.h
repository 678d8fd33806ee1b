// mui::MarkupMetricsHeadless: lays marked-up text out with the headless text
// model, for the headless binding, its tests and tools where fonts do not
// exist. Each piece's width is the style's advance times its code points, and
// a line is the style's line height. A derived class places the pieces.
#pragma once

#include "mui/headless/TextModelHeadless.h"
#include "plat/MarkupLayout.h"

namespace mui {

class MarkupMetricsHeadless : public plat::Markup::Layout::Callback {
public:
  /// Sizes beyond this (and below 0) are measured at the nearest bound.
  static constexpr std::int32_t maxFontSize = 100 * 120;

  void setStyle(const plat::Markup::Style& style, const char* href, const char* text) override;
  std::int32_t lineHeight() override { return model_.lineHeight(); }
  std::int32_t measure(const char* begin, const char* end) override;

private:
  TextModelHeadless model_{MuStyle(), false};
};

} // namespace mui
