#include "rfb/PixelCodec.h"

namespace rfb {

std::uint32_t loadPixel(const std::uint8_t* p, int bytes) {
  switch (bytes) {
  case 1:
    return loadPixel<1>(p);
  case 2:
    return loadPixel<2>(p);
  case 3:
    return loadPixel<3>(p);
  case 4:
    return loadPixel<4>(p);
  default:
    return 0;
  }
}

void storePixel(std::uint8_t* p, int bytes, std::uint32_t v) {
  switch (bytes) {
  case 1:
    return storePixel<1>(p, v);
  case 2:
    return storePixel<2>(p, v);
  case 3:
    return storePixel<3>(p, v);
  case 4:
    return storePixel<4>(p, v);
  default:
    return;
  }
}

} // namespace rfb
