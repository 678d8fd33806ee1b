// A colour as the pixel routines compute with it: red, green, blue and alpha,
// each 0..255 in a 32-bit integer. Where alpha is present colours are
// premultiplied, so a channel never exceeds alpha.
#pragma once

#include <cstdint>

namespace rfb {

struct Colour {
  std::int32_t r = 0;
  std::int32_t g = 0;
  std::int32_t b = 0;
  std::int32_t a = 0;

  friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

} // namespace rfb
