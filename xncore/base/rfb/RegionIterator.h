// Visits the rectangles of a region in an order fit for moving pixels by a
// delta: given direction = -delta, the rectangle that lies farthest along the
// move comes first, so no rectangle overwrites a source that is still to be
// read. The order is monotonic along both axes.
#pragma once

#include "rfb/Region.h"

namespace rfb {

class RegionIterator {
public:
  /// A negative direction.x, or a zero one with a negative direction.y, walks
  /// each band right to left; a negative direction.y, or a zero one with a
  /// negative direction.x, walks the bands bottom to top. `region` must outlive
  /// the iterator.
  RegionIterator(const Region& region, Point direction);

  /// The next rectangle, or false when all have been visited.
  bool next(Rect& rect);

private:
  /// Sets the current band to the one that holds index `i`.
  void enterBand(int i);

  const RgnRect* rects_;
  int count_;
  int stepX_;
  int stepY_;
  int bandBegin_ = 0; ///< current band, [bandBegin_, bandEnd_)
  int bandEnd_ = 0;
  int position_ = 0;
};

} // namespace rfb
