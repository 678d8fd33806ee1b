// A set of pixels held as rectangles in 16-bit coordinates, in y-x bands: the
// rectangles of one band share their top and bottom, bands do not overlap,
// a band's rectangles are sorted by left edge and do not touch, and adjacent
// bands with the same spans are merged. That canonical form makes two equal
// sets hold equal rectangles.
//
// A region of one rectangle keeps it in its extents and holds no block; the
// empty region points at one shared block whose capacity is 0, which is never
// freed.
#pragma once

#include "rfb/Rect.h"

#include <cstdint>

namespace rfb {

class Region {
public:
  /// The empty region.
  Region() noexcept;
  /// An empty or inverted rectangle gives the empty region.
  explicit Region(const RgnRect& rect) noexcept;
  /// Clamps to 16-bit coordinates first.
  explicit Region(const Rect& rect) noexcept : Region(RgnRect(rect)) {}
  Region(const Region& other);
  Region(Region&& other) noexcept;
  Region& operator=(const Region& other);
  Region& operator=(Region&& other) noexcept;
  ~Region();

  bool isEmpty() const noexcept { return numRects() == 0; }
  /// The bounding box; all zero when empty.
  const RgnRect& extents() const noexcept { return extents_; }
  int numRects() const noexcept { return data_ ? data_->numRects : 1; }
  /// The rectangles in band order, numRects() of them.
  const RgnRect* rects() const noexcept { return data_ ? data_->rects() : &extents_; }

  Region unionWith(const Region& other) const;
  Region intersection(const Region& other) const;
  Region difference(const Region& other) const;
  /// Moves every rectangle; what leaves the 16-bit range is cut off.
  void translate(Point delta);

  friend bool operator==(const Region& a, const Region& b) noexcept;

private:
  struct Data {
    std::int32_t size;     ///< rectangles allocated; 0 only for the shared empty block
    std::int32_t numRects; ///< rectangles in use
    RgnRect* rects() noexcept { return reinterpret_cast<RgnRect*>(this + 1); }
    const RgnRect* rects() const noexcept { return reinterpret_cast<const RgnRect*>(this + 1); }
  };
  enum class Operation { unite, intersect, subtract };

  static Data* allocate(std::int32_t count);
  static void release(Data* data) noexcept;
  /// Adopts rectangles already in canonical band order.
  static Region fromBands(const RgnRect* rects, int count);
  Region combine(const Region& other, Operation operation) const;

  static Data emptyData_;

  RgnRect extents_;
  Data* data_;
};

} // namespace rfb
