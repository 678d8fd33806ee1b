// plat::MarkupFixedMetrics: measures marked-up text with the fixed text model
// of the headless binding, where fonts do not exist. Every character of a
// style has the same advance, (7 * size + 60) / 120 pixels, one more for a
// weight of 550 or more; a line is (16 * size + 60) / 120 pixels high. A
// derived class places the pieces that the layout hands it.
#pragma once

#include "plat/MarkupLayout.h"

#include <cstdint>

namespace plat {

class MarkupFixedMetrics : public Markup::Layout::Callback {
public:
  static constexpr std::int32_t boldWeight = 550;

  /// The advance of one character; sizes are in units where 120 is normal.
  static std::int32_t advance(std::int32_t size, std::int32_t weight) noexcept;
  static std::int32_t lineHeightOf(std::int32_t size) noexcept;

  void setStyle(const Markup::Style& style, const char* href, const char* text) override;
  std::int32_t lineHeight() override;
  /// The advance times the number of characters.
  std::int32_t measure(const char* begin, const char* end) override;

private:
  std::int32_t size_ = Markup::Style::normalSize;
  std::int32_t weight_ = Markup::Style::normalWeight;
};

} // namespace plat
