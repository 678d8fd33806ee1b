#include "rfb/Composite.h"

#include "rfb/Drawing.h"
#include "rfb/PixelCodec.h"

#include <algorithm>
#include <cstring>

namespace rfb {

namespace compositeFunctions {

void copy(const Colour& source, Colour& dest, int) {
  dest = source;
}

void over(const Colour& source, Colour& dest, int) {
  const std::int32_t rest = 255 - source.a;
  dest.r = source.r + (rest * dest.r + 127) / 255;
  dest.g = source.g + (rest * dest.g + 127) / 255;
  dest.b = source.b + (rest * dest.b + 127) / 255;
  dest.a = source.a + (rest * dest.a + 127) / 255;
}

void blend(const Colour& source, Colour& dest, int k) {
  const std::int32_t rest = 255 - (k * source.a + 127) / 255;
  dest.r = (k * source.r + rest * dest.r + 127) / 255;
  dest.g = (k * source.g + rest * dest.g + 127) / 255;
  dest.b = (k * source.b + rest * dest.b + 127) / 255;
  dest.a = (k * source.a + rest * dest.a + 127) / 255;
}

void premultiply(const Colour& source, Colour& dest, int) {
  dest.r = (source.r * source.a + 127) / 255;
  dest.g = (source.g * source.a + 127) / 255;
  dest.b = (source.b * source.a + 127) / 255;
  dest.a = source.a;
}

void unpremultiply(const Colour& source, Colour& dest, int) {
  const std::int32_t a = source.a;
  // A channel above alpha is no premultiplied colour; it is held at 255.
  auto divide = [a](std::int32_t c) { return a ? std::min(255, (c * 255 + a / 2) / a) : 0; };
  dest.r = divide(source.r);
  dest.g = divide(source.g);
  dest.b = divide(source.b);
  dest.a = a;
}

void greyscale(const Colour& source, Colour& dest, int) {
  const std::int32_t y = (19661 * source.r + 38666 * source.g + 7209 * source.b) >> 16;
  dest = {y, y, y, source.a};
}

void greyscaleOver(const Colour& source, Colour& dest, int k) {
  Colour grey;
  greyscale(source, grey, k);
  over(grey, dest, k);
}

} // namespace compositeFunctions

namespace {

struct Side {
  const PixelFormat& pf;
  const ColourMap* map;
  int stride;
};

using CompositeRows = void (*)(const std::uint8_t* source, const Side& from, std::uint8_t* dest,
                               const Side& to, Size size, const CompositeOp& operation);

// One routine for each pair of pixel sizes, so that loading and storing need no
// test of the size inside the loop.
template <int SourceBytes, int DestBytes>
void compositeRows(const std::uint8_t* source, const Side& from, std::uint8_t* dest, const Side& to,
                   Size size, const CompositeOp& operation) {
  for (std::int32_t y = 0; y < size.height; ++y) {
    const std::uint8_t* s = source + std::ptrdiff_t{y} * from.stride * SourceBytes;
    std::uint8_t* d = dest + std::ptrdiff_t{y} * to.stride * DestBytes;
    for (std::int32_t x = 0; x < size.width; ++x, s += SourceBytes, d += DestBytes) {
      const Colour sc = unpackPixel(from.pf, from.map, loadPixel<SourceBytes>(s));
      Colour dc = unpackPixel(to.pf, to.map, loadPixel<DestBytes>(d));
      operation(sc, dc);
      storePixel<DestBytes>(d, packPixel(to.pf, to.map, dc));
    }
  }
}

template <int SourceBytes>
constexpr CompositeRows rowsFrom[4] = {compositeRows<SourceBytes, 1>, compositeRows<SourceBytes, 2>,
                                       compositeRows<SourceBytes, 3>,
                                       compositeRows<SourceBytes, 4>};

constexpr const CompositeRows* rowsTable[4] = {rowsFrom<1>, rowsFrom<2>, rowsFrom<3>, rowsFrom<4>};

bool knownSize(int bytes) {
  return bytes >= 1 && bytes <= 4;
}

} // namespace

void composite(PixelBuffer& source, Point sourceOffset, WritablePixelBuffer& dest,
               const Rect& destRect, const CompositeOp& operation) {
  const Rect area =
      destRect.intersect(dest.getRect()).intersect(source.getRect().translate(sourceOffset));
  if (area.isEmpty())
    return;
  const PixelFormat& sourcePf = source.getPf();
  const PixelFormat& destPf = dest.getPf();
  const CompositeOp op = operation == opOver && !sourcePf.hasAlpha() ? opCopy : operation;

  int sourceStride = 0, destStride = 0;
  const std::uint8_t* from =
      source.getPixelsR(area.translate(sourceOffset.negate()), &sourceStride);
  std::uint8_t* to = dest.getPixelsRW(area, &destStride);
  const int sourceBytes = sourcePf.bytesPerPixel();
  const int destBytes = destPf.bytesPerPixel();
  if (op == opCopy && sourcePf == destPf) {
    for (std::int32_t y = 0; y < area.height(); ++y)
      std::memmove(to + std::ptrdiff_t{y} * destStride * destBytes,
                   from + std::ptrdiff_t{y} * sourceStride * sourceBytes,
                   std::size_t(area.width()) * destBytes);
    return;
  }
  if (!knownSize(sourceBytes) || !knownSize(destBytes))
    return;
  rowsTable[sourceBytes - 1][destBytes - 1](from, {sourcePf, source.getColourMap(), sourceStride},
                                            to, {destPf, dest.getColourMap(), destStride},
                                            area.size(), op);
}

void fillComposite(WritablePixelBuffer& buffer, const Rect& rect, const Colour& colour) {
  const Rect area = rect.intersect(buffer.getRect());
  if (area.isEmpty())
    return;
  const PixelFormat& pf = buffer.getPf();
  const ColourMap* map = buffer.getColourMap();
  if (pf == pfRgb888() && colour.a == 255) {
    fillRect(buffer, area, packPixel(pf, map, colour));
    return;
  }
  int stride = 0;
  std::uint8_t* row = buffer.getPixelsRW(area, &stride);
  const int bytes = pf.bytesPerPixel();
  if (!knownSize(bytes))
    return;
  const bool rgb888 = pf == pfRgb888();
  const std::int32_t rest = 255 - colour.a;
  for (std::int32_t y = 0; y < area.height(); ++y, row += std::ptrdiff_t{stride} * bytes) {
    std::uint8_t* p = row;
    for (std::int32_t x = 0; x < area.width(); ++x, p += bytes) {
      if (rgb888) {
        // Source over destination with the channels where the format keeps them.
        const std::uint32_t v = loadPixel<4>(p);
        const std::uint32_t r = colour.r + (rest * (v >> 16 & 255) + 127) / 255;
        const std::uint32_t g = colour.g + (rest * (v >> 8 & 255) + 127) / 255;
        const std::uint32_t b = colour.b + (rest * (v & 255) + 127) / 255;
        storePixel<4>(p, r << 16 | g << 8 | b);
      } else {
        Colour d = unpackPixel(pf, map, loadPixel(p, bytes));
        compositeFunctions::over(colour, d, 0);
        storePixel(p, bytes, packPixel(pf, map, d));
      }
    }
  }
}

} // namespace rfb
