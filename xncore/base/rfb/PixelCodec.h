// Loading and storing pixel values of 1 to 4 bytes, and turning them into
// colours and back for any PixelFormat. The per-pixel loops of the drawing,
// compositing and scaling routines build on these; true colour takes no
// virtual call.
#pragma once

#include "rfb/Colour.h"
#include "rfb/ColourMap.h"
#include "rfb/PixelFormat.h"

#include <cstdint>
#include <cstring>

namespace rfb {

/// A pixel value of `Bytes` bytes in this machine's order; three-byte values
/// are read low byte first.
template <int Bytes>
inline std::uint32_t loadPixel(const std::uint8_t* p) {
  if constexpr (Bytes == 1) {
    return *p;
  } else if constexpr (Bytes == 2) {
    std::uint16_t v;
    std::memcpy(&v, p, 2);
    return v;
  } else if constexpr (Bytes == 3) {
    return p[0] | p[1] << 8 | std::uint32_t{p[2]} << 16;
  } else {
    std::uint32_t v;
    std::memcpy(&v, p, 4);
    return v;
  }
}

template <int Bytes>
inline void storePixel(std::uint8_t* p, std::uint32_t v) {
  if constexpr (Bytes == 1) {
    *p = static_cast<std::uint8_t>(v);
  } else if constexpr (Bytes == 2) {
    const auto half = static_cast<std::uint16_t>(v);
    std::memcpy(p, &half, 2);
  } else if constexpr (Bytes == 3) {
    p[0] = static_cast<std::uint8_t>(v);
    p[1] = static_cast<std::uint8_t>(v >> 8);
    p[2] = static_cast<std::uint8_t>(v >> 16);
  } else {
    std::memcpy(p, &v, 4);
  }
}

/// As loadPixel for a size known only at run time; 0 for another size.
std::uint32_t loadPixel(const std::uint8_t* p, int bytes);
/// As storePixel for a size known only at run time; another size stores nothing.
void storePixel(std::uint8_t* p, int bytes, std::uint32_t v);

/// Big-endian pixels of 16 and 32 bits have their bytes reversed; other sizes
/// are left as they are.
inline std::uint32_t swapIfBigEndian(const PixelFormat& pf, std::uint32_t v) {
  if (!pf.bigEndian)
    return v;
  if (pf.bpp == 32)
    return __builtin_bswap32(v);
  if (pf.bpp == 16)
    return __builtin_bswap16(static_cast<std::uint16_t>(v));
  return v;
}

/// A channel of maximum `max` on the 0..255 scale, rounded; 0 for max 0.
inline std::int32_t channelTo255(std::uint32_t c, std::uint32_t max) {
  return max ? static_cast<std::int32_t>((c * 255 + max / 2) / max) : 0;
}

/// A 0..255 channel on the scale of `max`, truncating.
inline std::uint32_t channelFrom255(std::int32_t c, std::uint32_t max) {
  return (static_cast<std::uint32_t>(c) * max + 127) / 255;
}

/// The colour of a pixel value. Without alpha in the format, alpha is 255; a
/// colour-map pixel without a map is black.
inline Colour unpackPixel(const PixelFormat& pf, const ColourMap* map, std::uint32_t value) {
  value = swapIfBigEndian(pf, value);
  if (!pf.trueColour) {
    Colour c = map ? map->lookup(value) : Colour();
    c.a = 255;
    return c;
  }
  const std::uint32_t r = value >> pf.redShift & pf.redMax;
  const std::uint32_t g = value >> pf.greenShift & pf.greenMax;
  const std::uint32_t b = value >> pf.blueShift & pf.blueMax;
  Colour c;
  if (pf.redMax != 255 || pf.greenMax != 255 || pf.blueMax != 255) {
    c.r = channelTo255(r, pf.redMax);
    c.g = channelTo255(g, pf.greenMax);
    c.b = channelTo255(b, pf.blueMax);
  } else {
    c.r = static_cast<std::int32_t>(r);
    c.g = static_cast<std::int32_t>(g);
    c.b = static_cast<std::int32_t>(b);
  }
  const std::uint32_t a = value >> pf.alphaShift & pf.alphaMax;
  c.a = pf.alphaMax == 0     ? 255
        : pf.alphaMax == 255 ? static_cast<std::int32_t>(a)
                             : channelTo255(a, pf.alphaMax);
  return c;
}

/// The pixel value of a colour; alpha is stored when the format has it. A
/// colour-map format asks the map for the nearest entry, 0 without a map.
inline std::uint32_t packPixel(const PixelFormat& pf, const ColourMap* map, const Colour& c) {
  std::uint32_t value;
  if (!pf.trueColour) {
    value = map ? map->nearest(c) : 0;
  } else if (pf.redMax != 255 || pf.greenMax != 255 || pf.blueMax != 255 ||
             (pf.alphaMax != 0 && pf.alphaMax != 255)) {
    value = channelFrom255(c.r, pf.redMax) << pf.redShift |
            channelFrom255(c.g, pf.greenMax) << pf.greenShift |
            channelFrom255(c.b, pf.blueMax) << pf.blueShift;
    if (pf.alphaMax)
      value |= channelFrom255(c.a, pf.alphaMax) << pf.alphaShift;
  } else {
    value = static_cast<std::uint32_t>(c.r) << pf.redShift |
            static_cast<std::uint32_t>(c.g) << pf.greenShift |
            static_cast<std::uint32_t>(c.b) << pf.blueShift;
    if (pf.alphaMax)
      value |= static_cast<std::uint32_t>(c.a) << pf.alphaShift;
  }
  return swapIfBigEndian(pf, value);
}

} // namespace rfb
