#include "plat/MarkupFixedMetrics.h"

#include "plat/utf8.h"

#include <algorithm>
#include <limits>

namespace plat {

namespace {

// Sizes come from the text, so the arithmetic is wide and the result clamped.
std::int32_t scaled(std::int32_t size, std::int64_t factor) {
  std::int64_t pixels = (factor * size + 60) / 120;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      pixels, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

} // namespace

std::int32_t MarkupFixedMetrics::advance(std::int32_t size, std::int32_t weight) noexcept {
  std::int32_t pixels = scaled(size, 7);
  return weight >= boldWeight && pixels < std::numeric_limits<std::int32_t>::max() ? pixels + 1
                                                                                   : pixels;
}

std::int32_t MarkupFixedMetrics::lineHeightOf(std::int32_t size) noexcept {
  return scaled(size, 16);
}

void MarkupFixedMetrics::setStyle(const Markup::Style& style, const char*, const char*) {
  size_ = style.size_;
  weight_ = style.weight_;
}

std::int32_t MarkupFixedMetrics::lineHeight() {
  return lineHeightOf(size_);
}

std::int32_t MarkupFixedMetrics::measure(const char* begin, const char* end) {
  std::int64_t width =
      static_cast<std::int64_t>(advance(size_, weight_)) * codePointCount(begin, end);
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      width, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

} // namespace plat
