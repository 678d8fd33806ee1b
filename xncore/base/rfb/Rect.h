// Points, sizes and rectangles in 32-bit pixel coordinates: the geometry that
// the toolkit and the pixel buffers share. A rectangle includes its top-left
// corner and excludes its bottom-right one. Regions store rectangles in 16-bit
// coordinates (RgnRect); a pixel buffer's rectangle must survive that trip.
#pragma once

#include "plat/String.h"

#include <algorithm>
#include <cstdint>

namespace rfb {

struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;

  constexpr Point() = default;
  constexpr Point(std::int32_t x_, std::int32_t y_) : x(x_), y(y_) {}

  constexpr Point translate(Point p) const { return {x + p.x, y + p.y}; }
  constexpr Point negate() const { return {-x, -y}; }
  constexpr bool equals(Point p) const { return x == p.x && y == p.y; }
  friend constexpr bool operator==(Point, Point) = default;
};

struct Size {
  std::int32_t width = 0;
  std::int32_t height = 0;

  constexpr Size() = default;
  constexpr Size(std::int32_t w, std::int32_t h) : width(w), height(h) {}

  friend constexpr bool operator==(Size, Size) = default;
};

struct Rect;

/// A rectangle in the 16-bit coordinates that a region stores; same conventions
/// as Rect.
struct RgnRect {
  std::int16_t x1 = 0;
  std::int16_t y1 = 0;
  std::int16_t x2 = 0;
  std::int16_t y2 = 0;

  constexpr RgnRect() = default;
  constexpr RgnRect(std::int16_t x1_, std::int16_t y1_, std::int16_t x2_, std::int16_t y2_)
      : x1(x1_), y1(y1_), x2(x2_), y2(y2_) {}
  /// Each coordinate clamped to -32768..32767.
  constexpr explicit RgnRect(const Rect& r);

  constexpr bool isEmpty() const { return x1 >= x2 || y1 >= y2; }
  friend constexpr bool operator==(const RgnRect&, const RgnRect&) = default;
};

struct Rect {
  Point tl;
  Point br;

  constexpr Rect() = default;
  constexpr Rect(Point tl_, Point br_) : tl(tl_), br(br_) {}
  constexpr Rect(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2)
      : tl(x1, y1), br(x2, y2) {}
  /// Exact: every 16-bit coordinate fits.
  constexpr explicit Rect(const RgnRect& r) : tl(r.x1, r.y1), br(r.x2, r.y2) {}
  /// The rectangle of `size` with its top-left corner at `at`.
  static constexpr Rect at(Point at, Size size) {
    return {at, {at.x + size.width, at.y + size.height}};
  }

  constexpr std::int32_t width() const { return br.x - tl.x; }
  constexpr std::int32_t height() const { return br.y - tl.y; }
  constexpr Size size() const { return {width(), height()}; }
  constexpr bool isEmpty() const { return tl.x >= br.x || tl.y >= br.y; }
  constexpr bool equals(const Rect& r) const { return tl == r.tl && br == r.br; }
  friend constexpr bool operator==(const Rect&, const Rect&) = default;

  /// Whether `other` lies wholly inside. An empty `other` is not exempt:
  /// callers that care test for it first.
  constexpr bool encloses(const Rect& other) const {
    return other.tl.x >= tl.x && other.tl.y >= tl.y && other.br.x <= br.x && other.br.y <= br.y;
  }
  constexpr bool contains(Point p) const {
    return p.x >= tl.x && p.y >= tl.y && p.x < br.x && p.y < br.y;
  }
  /// The common part; the empty rectangle when it is inverted on either axis.
  constexpr Rect intersect(const Rect& other) const {
    Rect r{{std::max(tl.x, other.tl.x), std::max(tl.y, other.tl.y)},
           {std::min(br.x, other.br.x), std::min(br.y, other.br.y)}};
    if (r.tl.x > r.br.x || r.tl.y > r.br.y)
      return Rect();
    return r;
  }
  constexpr Rect translate(Point p) const { return {tl.translate(p), br.translate(p)}; }
};

constexpr std::int16_t clampToInt16(std::int32_t v) {
  return static_cast<std::int16_t>(std::clamp<std::int32_t>(v, INT16_MIN, INT16_MAX));
}

constexpr RgnRect::RgnRect(const Rect& r)
    : x1(clampToInt16(r.tl.x)), y1(clampToInt16(r.tl.y)), x2(clampToInt16(r.br.x)),
      y2(clampToInt16(r.br.y)) {}

/// "left,top to right,bottom".
plat::String toString(const Rect& r);

} // namespace rfb
