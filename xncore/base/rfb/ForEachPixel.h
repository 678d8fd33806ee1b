// The walk over the pixels of a clipped rectangle that the drawing routines
// share, with the pixel size known at compile time inside the loop.
#pragma once

#include "rfb/WritablePixelBuffer.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace rfb {

/// Calls visit(address) for each pixel of `rect` clipped to the buffer, row by
/// row, with the pixel size known at compile time.
template <class Visit>
void forEachPixel(WritablePixelBuffer& buffer, const Rect& rect, Visit visit) {
  const Rect area = rect.intersect(buffer.getRect());
  if (area.isEmpty())
    return;
  int stride = 0;
  std::uint8_t* row = buffer.getPixelsRW(area, &stride);
  auto walk = [&](auto bytesConstant) {
    constexpr int bytes = decltype(bytesConstant)::value;
    for (std::int32_t y = 0; y < area.height(); ++y, row += std::ptrdiff_t{stride} * bytes) {
      std::uint8_t* p = row;
      for (std::int32_t x = 0; x < area.width(); ++x, p += bytes)
        visit.template operator()<bytes>(p, Point(area.tl.x + x, area.tl.y + y));
    }
  };
  switch (buffer.getPf().bytesPerPixel()) {
  case 1:
    return walk(std::integral_constant<int, 1>());
  case 2:
    return walk(std::integral_constant<int, 2>());
  case 3:
    return walk(std::integral_constant<int, 3>());
  case 4:
    return walk(std::integral_constant<int, 4>());
  default:
    return;
  }
}

} // namespace rfb
