#include "rfb/Drawing.h"
#include "rfb/ForEachPixel.h"
#include "rfb/PixelCodec.h"
#include "rfb/RegionIterator.h"

#include <cstring>

namespace rfb {

namespace {

/// The address of pixel (x, y) of a raw array with rows `stride` pixels apart.
template <int bytes>
const std::uint8_t* at(const void* pixels, int stride, std::int32_t x, std::int32_t y) {
  return static_cast<const std::uint8_t*>(pixels) + (std::ptrdiff_t{y} * stride + x) * bytes;
}

bool maskBit(const std::uint8_t* mask, int stride, std::int32_t column, std::int32_t row) {
  return mask[std::ptrdiff_t{row} * stride + column / 8] >> (7 - column % 8) & 1;
}

} // namespace

void imageRect(WritablePixelBuffer& buffer, const Rect& rect, const void* pixels, int stride) {
  const Rect area = rect.intersect(buffer.getRect());
  if (area.isEmpty())
    return;
  const std::size_t bytes = buffer.getPf().bytesPerPixel();
  const std::size_t sourceRow = bytes * (stride ? stride : rect.width());
  const auto* from = static_cast<const std::uint8_t*>(pixels) +
                     (area.tl.y - rect.tl.y) * sourceRow + (area.tl.x - rect.tl.x) * bytes;
  int destStride = 0;
  std::uint8_t* to = buffer.getPixelsRW(area, &destStride);
  for (std::int32_t y = 0; y < area.height(); ++y)
    std::memcpy(to + y * destStride * bytes, from + y * sourceRow, area.width() * bytes);
}

void imageRectRotated(WritablePixelBuffer& buffer, const Rect& rect, const void* pixels, int stride,
                      int quarterTurns) {
  const int turns = quarterTurns & 3;
  if (turns == 0)
    return imageRect(buffer, rect, pixels, stride);
  const std::int32_t w = rect.width(), h = rect.height();
  const int sourceStride = stride ? stride : (turns == 2 ? w : h);
  forEachPixel(buffer, rect, [&]<int bytes>(std::uint8_t* p, Point point) {
    const std::int32_t x = point.x - rect.tl.x, y = point.y - rect.tl.y;
    // The source pixel that a clockwise turn brings to (x, y).
    const std::int32_t sx = turns == 1 ? y : turns == 2 ? w - 1 - x : h - 1 - y;
    const std::int32_t sy = turns == 1 ? w - 1 - x : turns == 2 ? h - 1 - y : x;
    storePixel<bytes>(p, loadPixel<bytes>(at<bytes>(pixels, sourceStride, sx, sy)));
  });
}

void maskImageRect(WritablePixelBuffer& buffer, const Rect& rect, const void* pixels,
                   const std::uint8_t* mask, int pixelStride, int maskStride, Point maskOffset) {
  const int sourceStride = pixelStride ? pixelStride : rect.width();
  const int stride = maskStride ? maskStride : (rect.width() + 7) / 8;
  forEachPixel(buffer, rect, [&]<int bytes>(std::uint8_t* p, Point point) {
    const std::int32_t x = point.x - rect.tl.x, y = point.y - rect.tl.y;
    if (maskBit(mask, stride, x + maskOffset.x, y + maskOffset.y))
      storePixel<bytes>(p, loadPixel<bytes>(at<bytes>(pixels, sourceStride, x, y)));
  });
}

void tileRect(PixelBuffer& source, Point offset, WritablePixelBuffer& dest, const Region& region) {
  const Size tile = source.size();
  if (tile.width <= 0 || tile.height <= 0)
    return;
  // The first copy at or before a coordinate, counting from the offset.
  auto tileStart = [](std::int32_t v, std::int32_t origin, std::int32_t size) {
    const std::int32_t d = v - origin;
    return origin + (d >= 0 ? d / size : -((-d + size - 1) / size)) * size;
  };
  for (int i = 0; i < region.numRects(); ++i) {
    const Rect r = Rect(region.rects()[i]).intersect(dest.getRect());
    if (r.isEmpty())
      continue;
    for (std::int32_t y = tileStart(r.tl.y, offset.y, tile.height); y < r.br.y; y += tile.height)
      for (std::int32_t x = tileStart(r.tl.x, offset.x, tile.width); x < r.br.x; x += tile.width) {
        const Rect part = Rect::at({x, y}, tile).intersect(r);
        int stride = 0;
        const std::uint8_t* from = source.getPixelsR(
            part.translate(Point(x, y).negate()).translate(source.getRect().tl), &stride);
        imageRect(dest, part, from, stride);
      }
  }
}

void copyRect(WritablePixelBuffer& buffer, const Rect& rect, Point delta) {
  const Rect& bounds = buffer.getRect();
  const Rect source = rect.intersect(bounds).translate(delta.negate()).intersect(bounds);
  const Rect dest = source.translate(delta);
  if (source.isEmpty())
    return;
  const std::size_t bytes = buffer.getPf().bytesPerPixel();
  int stride = 0;
  const std::uint8_t* from = buffer.getPixelsRW(source, &stride);
  std::uint8_t* to = buffer.getPixelsRW(dest, nullptr);
  const std::ptrdiff_t row = std::ptrdiff_t{stride} * static_cast<std::ptrdiff_t>(bytes);
  const std::size_t rowBytes = dest.width() * bytes;
  // Moving down, the lowest row goes first so that no row is overwritten
  // before it has been read.
  if (delta.y > 0) {
    for (std::int32_t y = dest.height() - 1; y >= 0; --y)
      std::memmove(to + y * row, from + y * row, rowBytes);
  } else {
    for (std::int32_t y = 0; y < dest.height(); ++y)
      std::memmove(to + y * row, from + y * row, rowBytes);
  }
}

void copyRegion(WritablePixelBuffer& buffer, const Region& region, Point delta) {
  RegionIterator it(region, delta.negate());
  for (Rect r; it.next(r);)
    copyRect(buffer, r, delta);
}

} // namespace rfb
