#include "rfb/Rect.h"

#include <cstdio>

namespace rfb {

plat::String toString(const Rect& r) {
  char text[64];
  std::snprintf(text, sizeof text, "%d,%d to %d,%d", static_cast<int>(r.tl.x),
                static_cast<int>(r.tl.y), static_cast<int>(r.br.x), static_cast<int>(r.br.y));
  return plat::String(text);
}

} // namespace rfb
