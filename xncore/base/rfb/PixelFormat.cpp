#include "rfb/PixelFormat.h"

#include "plat/BoundedAppend.h"

#include <bit>
#include <cctype>
#include <cstdlib>
#include <cstring>

namespace rfb {

namespace {

int bits(unsigned max) {
  return std::popcount(max);
}

int bppForDepth(int depth) {
  return depth <= 8 ? 8 : depth <= 16 ? 16 : 32;
}

bool hasPrefix(const char* text, const char* prefix) {
  for (; *prefix; ++text, ++prefix)
    if (std::tolower(static_cast<unsigned char>(*text)) != *prefix)
      return false;
  return true;
}

struct Channel {
  char letter;
  int max;
  int shift;
};

// Writes the channel letters into `order`, most significant first, and tells
// whether the channels sit next to each other without gaps.
bool contiguousOrder(Channel* channels, int count, char* order) {
  for (int i = 0; i < count; ++i)
    for (int j = i + 1; j < count; ++j)
      if (channels[j].shift > channels[i].shift) {
        Channel swapped = channels[i];
        channels[i] = channels[j];
        channels[j] = swapped;
      }
  for (int i = 0; i + 1 < count; ++i)
    if (channels[i].shift != channels[i + 1].shift + bits(channels[i + 1].max))
      return false;
  for (int i = 0; i < count; ++i)
    order[i] = channels[i].letter;
  order[count] = '\0';
  return true;
}

} // namespace

bool PixelFormat::equal(const PixelFormat& other) const noexcept {
  if (bpp != other.bpp || depth != other.depth || trueColour != other.trueColour)
    return false;
  if (bpp != 8 && bigEndian != other.bigEndian)
    return false;
  if (!trueColour)
    return true;
  return redMax == other.redMax && greenMax == other.greenMax && blueMax == other.blueMax &&
         alphaMax == other.alphaMax && redShift == other.redShift &&
         greenShift == other.greenShift && blueShift == other.blueShift &&
         alphaShift == other.alphaShift;
}

bool PixelFormat::isValid() const noexcept {
  if (bpp != 8 && bpp != 16 && bpp != 24 && bpp != 32)
    return false;
  if (depth < 1 || depth > bpp)
    return false;
  if (!trueColour)
    return depth < 9;
  return redShift + bits(redMax) <= bpp && greenShift + bits(greenMax) <= bpp &&
         blueShift + bits(blueMax) <= bpp && alphaShift + bits(alphaMax) <= bpp;
}

bool PixelFormat::isByteAligned() const noexcept {
  return redMax <= 255 && greenMax <= 255 && blueMax <= 255 && alphaMax <= 255 &&
         redShift % 8 == 0 && greenShift % 8 == 0 && blueShift % 8 == 0 && alphaShift % 8 == 0;
}

void PixelFormat::setDepthFromMasks() noexcept {
  if (!trueColour)
    return;
  const unsigned mask = unsigned{redMax} << redShift | unsigned{greenMax} << greenShift |
                        unsigned{blueMax} << blueShift | unsigned{alphaMax} << alphaShift;
  depth = static_cast<std::uint8_t>(bits(mask));
}

bool PixelFormat::makeLittleEndian() noexcept {
  if (!bigEndian)
    return true;
  if (bpp == 8) {
    bigEndian = 0;
    return true;
  }
  if (!isByteAligned())
    return false;
  auto mirror = [this](std::uint8_t& shift) { shift = static_cast<std::uint8_t>(bpp - shift - 8); };
  mirror(redShift);
  mirror(greenShift);
  mirror(blueShift);
  if (alphaMax != 0)
    mirror(alphaShift);
  bigEndian = 0;
  return true;
}

bool PixelFormat::parse(const char* text) noexcept {
  PixelFormat parsed = *this;
  if (hasPrefix(text, "pal")) {
    const int n = std::atoi(text + 3);
    if (n < 1 || n > 8)
      return false;
    parsed.trueColour = 0;
    parsed.depth = static_cast<std::uint8_t>(n);
  } else if (hasPrefix(text, "rgb") || hasPrefix(text, "bgr")) {
    if (std::strlen(text) != 6)
      return false;
    int width[3];
    for (int i = 0; i < 3; ++i) {
      const char digit = text[3 + i];
      if (digit < '1' || digit > '9')
        return false;
      width[i] = digit - '0';
    }
    // Widths from the most significant channel to the least.
    const int low = 0, middle = width[2], high = width[1] + width[2];
    const bool rgb = hasPrefix(text, "rgb");
    parsed.trueColour = 1;
    parsed.depth = static_cast<std::uint8_t>(width[0] + width[1] + width[2]);
    parsed.redMax = static_cast<std::uint16_t>((1 << width[rgb ? 0 : 2]) - 1);
    parsed.greenMax = static_cast<std::uint16_t>((1 << width[1]) - 1);
    parsed.blueMax = static_cast<std::uint16_t>((1 << width[rgb ? 2 : 0]) - 1);
    parsed.redShift = static_cast<std::uint8_t>(rgb ? high : low);
    parsed.greenShift = static_cast<std::uint8_t>(middle);
    parsed.blueShift = static_cast<std::uint8_t>(rgb ? low : high);
  } else {
    return false;
  }
  parsed.bigEndian = 0;
  parsed.bpp = static_cast<std::uint8_t>(bppForDepth(parsed.depth));
  *this = parsed;
  return true;
}

void PixelFormat::print(char* buffer) const noexcept {
  buffer[0] = '\0';
  plat::appendBoundedFormat(buffer, printSize, "depth %d (%d bpp)", depth, bpp);
  if (bpp != 8)
    plat::appendBoundedFormat(buffer, printSize, " %s-endian", bigEndian ? "big" : "little");
  if (!trueColour) {
    plat::appendBounded(buffer, printSize, " colour-map");
    return;
  }
  Channel channels[4] = {{'r', redMax, redShift},
                         {'g', greenMax, greenShift},
                         {'b', blueMax, blueShift},
                         {'a', alphaMax, alphaShift}};
  const int count = alphaMax ? 4 : 3;
  const int total = bits(redMax) + bits(greenMax) + bits(blueMax) + (alphaMax ? bits(alphaMax) : 0);
  char order[5];
  static const char* const names[] = {"rgb", "rgba", "argb", "bgr", "bgra", "abgr"};
  if (total == depth && contiguousOrder(channels, count, order)) {
    for (const char* name : names) {
      if (std::strcmp(name, order) != 0)
        continue;
      plat::appendBoundedFormat(buffer, printSize, " %s", name);
      for (int i = 0; i < count; ++i)
        plat::appendBoundedFormat(buffer, printSize, "%d", bits(channels[i].max));
      return;
    }
  }
  plat::appendBoundedFormat(buffer, printSize, " rgb max %d,%d,%d shift %d,%d,%d", redMax, greenMax,
                            blueMax, redShift, greenShift, blueShift);
  if (alphaMax)
    plat::appendBoundedFormat(buffer, printSize, " alpha max %d shift %d", alphaMax, alphaShift);
}

void PixelFormat::write(std::uint8_t* wire) const noexcept {
  auto put16 = [](std::uint8_t* at, std::uint16_t value) {
    at[0] = static_cast<std::uint8_t>(value >> 8);
    at[1] = static_cast<std::uint8_t>(value);
  };
  wire[0] = bpp;
  wire[1] = depth;
  wire[2] = bigEndian;
  wire[3] = trueColour;
  put16(wire + 4, redMax);
  put16(wire + 6, greenMax);
  put16(wire + 8, blueMax);
  wire[10] = redShift;
  wire[11] = greenShift;
  wire[12] = blueShift;
  wire[13] = alphaShift;
  put16(wire + 14, alphaMax);
}

void PixelFormat::read(const std::uint8_t* wire) noexcept {
  auto get16 = [](const std::uint8_t* at) {
    return static_cast<std::uint16_t>(at[0] << 8 | at[1]);
  };
  bpp = wire[0];
  depth = wire[1];
  bigEndian = wire[2] ? 1 : 0;
  trueColour = wire[3] ? 1 : 0;
  redMax = get16(wire + 4);
  greenMax = get16(wire + 6);
  blueMax = get16(wire + 8);
  redShift = wire[10];
  greenShift = wire[11];
  blueShift = wire[12];
  alphaShift = wire[13];
  alphaMax = get16(wire + 14);
  if (depth != bits(redMax) + bits(greenMax) + bits(blueMax) + bits(alphaMax)) {
    alphaMax = 0;
    alphaShift = 0;
  }
  if (alphaMax == 0)
    alphaShift = 0;
}

const PixelFormat& pfRgb888() noexcept {
  static constexpr PixelFormat pf(32, 24, true, 255, 255, 255, 0, 16, 8, 0, 0);
  return pf;
}
const PixelFormat& pfBgr888() noexcept {
  static constexpr PixelFormat pf(32, 24, true, 255, 255, 255, 0, 0, 8, 16, 0);
  return pf;
}
const PixelFormat& pfRgb565() noexcept {
  static constexpr PixelFormat pf(16, 16, true, 31, 63, 31, 0, 11, 5, 0, 0);
  return pf;
}
const PixelFormat& pfRgb555() noexcept {
  static constexpr PixelFormat pf(16, 15, true, 31, 31, 31, 0, 10, 5, 0, 0);
  return pf;
}
const PixelFormat& pfRgb222() noexcept {
  static constexpr PixelFormat pf(8, 6, true, 3, 3, 3, 0, 4, 2, 0, 0);
  return pf;
}
const PixelFormat& pfRgb111() noexcept {
  static constexpr PixelFormat pf(8, 3, true, 1, 1, 1, 0, 2, 1, 0, 0);
  return pf;
}
const PixelFormat& pfPal8() noexcept {
  static constexpr PixelFormat pf(8, 8, false, 0, 0, 0, 0, 0, 0, 0, 0);
  return pf;
}
const PixelFormat& pfArgb8888() noexcept {
  static constexpr PixelFormat pf(32, 32, true, 255, 255, 255, 255, 16, 8, 0, 24);
  return pf;
}
const PixelFormat& pfAbgr8888() noexcept {
  static constexpr PixelFormat pf(32, 32, true, 255, 255, 255, 255, 0, 8, 16, 24);
  return pf;
}

} // namespace rfb
