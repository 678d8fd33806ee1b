#include "mui/headless/MarkupMetricsHeadless.h"

#include "plat/utf8.h"

#include <algorithm>
#include <limits>

namespace mui {

// Sizes come from the text itself, so they are bounded before the model's
// arithmetic sees them.
void MarkupMetricsHeadless::setStyle(const plat::Markup::Style& style, const char*, const char*) {
  MuStyle font;
  font.fontFlags = static_cast<std::int32_t>(style.flags_ & (MuStyle::Italic | MuStyle::Underline));
  font.fontSize = std::clamp(style.size_, 0, maxFontSize);
  font.fontWeight = style.weight_;
  model_ = TextModelHeadless(font, false);
}

std::int32_t MarkupMetricsHeadless::measure(const char* begin, const char* end) {
  std::int64_t width =
      static_cast<std::int64_t>(model_.advance()) * plat::codePointCount(begin, end);
  return static_cast<std::int32_t>(
      std::min<std::int64_t>(width, std::numeric_limits<std::int32_t>::max()));
}

} // namespace mui
