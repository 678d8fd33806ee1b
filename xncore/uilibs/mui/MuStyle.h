// mui::MuStyle: an element's own text and colour overrides. Elements without
// one inherit the first style found on the way up to their dialog.
#pragma once

#include "plat/String.h"

#include <cstdint>

namespace mui {

struct MuStyle {
  enum FontFlags : std::int32_t { Italic = 1, Underline = 2, Underline2 = 4 };

  /// Bit 0 italic; bits 1 and 2 each underline.
  std::int32_t fontFlags = 0;
  /// Relative size: 120 is the platform's message font at the scale of "ppmm".
  std::int32_t fontSize = 120;
  /// 400 normal, 700 bold; bold from 550.
  std::int32_t fontWeight = 400;
  /// Colour name or "#rrggbb"; null inherits.
  plat::String textColour;
  /// Colour name or "#rrggbb"; null has no fill of its own.
  plat::String backgroundColour;

  bool isBold() const noexcept { return fontWeight >= 550; }
  bool isUnderlined() const noexcept { return (fontFlags & (Underline | Underline2)) != 0; }
  bool isItalic() const noexcept { return (fontFlags & Italic) != 0; }
};

} // namespace mui
