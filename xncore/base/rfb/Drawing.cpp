#include "rfb/Drawing.h"

#include "rfb/ForEachPixel.h"
#include "rfb/PixelCodec.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace rfb {

namespace {

void plot(WritablePixelBuffer& buffer, Point p, std::uint32_t pixel) {
  if (buffer.getRect().contains(p))
    storePixel(buffer.getPixelsRW(Rect(p.x, p.y, p.x + 1, p.y + 1), nullptr),
               buffer.getPf().bytesPerPixel(), pixel);
}

/// Rounds n / d to nearest for a positive d, also for a negative n.
std::int32_t divideRounded(std::int32_t n, std::int32_t d) {
  const std::int32_t shifted = n + d / 2;
  return shifted >= 0 ? shifted / d : -((-shifted + d - 1) / d);
}

} // namespace

void fillRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t pixel) {
  if (buffer.getPf().bytesPerPixel() == 1) {
    const Rect area = rect.intersect(buffer.getRect());
    if (area.isEmpty())
      return;
    int stride = 0;
    std::uint8_t* row = buffer.getPixelsRW(area, &stride);
    for (std::int32_t y = 0; y < area.height(); ++y, row += stride)
      std::memset(row, static_cast<int>(pixel & 0xff), static_cast<std::size_t>(area.width()));
    return;
  }
  forEachPixel(buffer, rect,
               [pixel]<int bytes>(std::uint8_t* p, Point) { storePixel<bytes>(p, pixel); });
}

void frameRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t pixel, int width) {
  const Point tl = rect.tl, br = rect.br;
  fillRect(buffer, {tl.x, tl.y, br.x, tl.y + width}, pixel);
  fillRect(buffer, {tl.x, tl.y, tl.x + width, br.y}, pixel);
  fillRect(buffer, {tl.x, br.y - width, br.x, br.y}, pixel);
  fillRect(buffer, {br.x - width, tl.y, br.x, br.y}, pixel);
}

void drawLine(WritablePixelBuffer& buffer, Point from, Point to, std::uint32_t pixel) {
  const std::int32_t dx = std::abs(to.x - from.x), dy = -std::abs(to.y - from.y);
  const std::int32_t stepX = from.x < to.x ? 1 : -1, stepY = from.y < to.y ? 1 : -1;
  std::int32_t error = dx + dy;
  for (Point p = from; p != to;) {
    plot(buffer, p, pixel);
    const std::int32_t twice = 2 * error;
    if (twice >= dy) {
      error += dy;
      p.x += stepX;
    }
    if (twice <= dx) {
      error += dx;
      p.y += stepY;
    }
  }
}

void roundRect(WritablePixelBuffer& buffer, const Rect& rect, int radius, std::uint32_t pixel) {
  if (rect.isEmpty())
    return;
  const std::int32_t r = std::min({radius, rect.width() / 2, rect.height() / 2});
  const std::int32_t left = rect.tl.x, top = rect.tl.y;
  const std::int32_t right = rect.br.x - 1, bottom = rect.br.y - 1;
  drawLine(buffer, {left + r, top}, {right - r + 1, top}, pixel);
  drawLine(buffer, {left, top + r}, {left, bottom - r + 1}, pixel);
  drawLine(buffer, {left + r, bottom}, {right - r + 1, bottom}, pixel);
  drawLine(buffer, {right, top + r}, {right, bottom - r + 1}, pixel);

  // The midpoint circle over one octant, mirrored into the corner quadrants.
  const Point topLeft(left + r, top + r), topRight(right - r, top + r);
  const Point bottomLeft(left + r, bottom - r), bottomRight(right - r, bottom - r);
  std::int32_t x = 0, y = r, decision = 1 - r;
  while (x <= y) {
    for (const auto& [a, b] : {std::pair{x, y}, std::pair{y, x}}) {
      plot(buffer, {topLeft.x - a, topLeft.y - b}, pixel);
      plot(buffer, {topRight.x + a, topRight.y - b}, pixel);
      plot(buffer, {bottomLeft.x - a, bottomLeft.y + b}, pixel);
      plot(buffer, {bottomRight.x + a, bottomRight.y + b}, pixel);
    }
    ++x;
    if (decision < 0) {
      decision += 2 * x + 1;
    } else {
      --y;
      decision += 2 * (x - y) + 1;
    }
  }
}

void invertRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t mask) {
  forEachPixel(buffer, rect, [mask]<int bytes>(std::uint8_t* p, Point) {
    storePixel<bytes>(p, loadPixel<bytes>(p) ^ mask);
  });
}

void gradientRect(WritablePixelBuffer& buffer, const Rect& rect, const Colour& top,
                  const Colour& bottom) {
  const std::int32_t last = rect.height() - 1;
  auto channel = [last](std::int32_t from, std::int32_t to, std::int32_t i) {
    return last > 0 ? from + divideRounded((to - from) * i, last) : from;
  };
  const std::int32_t first = std::max(rect.tl.y, buffer.getRect().tl.y);
  const std::int32_t end = std::min(rect.br.y, buffer.getRect().br.y);
  for (std::int32_t y = first; y < end; ++y) {
    const std::int32_t i = y - rect.tl.y;
    const Colour c{channel(top.r, bottom.r, i), channel(top.g, bottom.g, i),
                   channel(top.b, bottom.b, i), channel(top.a, bottom.a, i)};
    fillRect(buffer, {rect.tl.x, y, rect.br.x, y + 1},
             packPixel(buffer.getPf(), buffer.getColourMap(), c));
  }
}

void maskRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t pixel,
              const std::uint8_t* mask, int maskStride, Point maskOffset) {
  const int stride = maskStride ? maskStride : (rect.width() + 7) / 8;
  forEachPixel(buffer, rect, [&]<int bytes>(std::uint8_t* p, Point at) {
    const std::int32_t column = at.x - rect.tl.x + maskOffset.x;
    const std::int32_t row = at.y - rect.tl.y + maskOffset.y;
    if (mask[std::ptrdiff_t{row} * stride + column / 8] >> (7 - column % 8) & 1)
      storePixel<bytes>(p, pixel);
  });
}

} // namespace rfb
