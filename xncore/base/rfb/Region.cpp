#include "rfb/Region.h"

#include "plat/Assertion.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace rfb {

Region::Data Region::emptyData_ = {0, 0};

namespace {

/// The rectangles of one band, [begin, end) of a region's array.
struct Band {
  const RgnRect* begin = nullptr;
  const RgnRect* end = nullptr;
};

/// Walks a region's bands downwards for rising y values.
class BandCursor {
public:
  BandCursor(const RgnRect* rects, int count) : next_(rects), end_(rects + count) {}

  /// The band that covers the row `y`, or an empty band. `y` never decreases
  /// between calls.
  Band at(std::int32_t y) {
    while (next_ != end_ && next_->y2 <= y)
      ++next_;
    if (next_ == end_ || next_->y1 > y)
      return {};
    const RgnRect* bandEnd = next_;
    while (bandEnd != end_ && bandEnd->y1 == next_->y1)
      ++bandEnd;
    return {next_, bandEnd};
  }

private:
  const RgnRect* next_;
  const RgnRect* end_;
};

struct Span {
  std::int32_t x1;
  std::int32_t x2;
  friend bool operator==(const Span&, const Span&) = default;
};

/// Whether the elementary interval starting at `x` lies in one of the band's
/// rectangles; `cursor` moves forward along the band.
bool covers(const RgnRect*& cursor, const RgnRect* end, std::int32_t x) {
  while (cursor != end && cursor->x2 <= x)
    ++cursor;
  return cursor != end && cursor->x1 <= x;
}

} // namespace

Region::Region() noexcept : data_(&emptyData_) {}

Region::Region(const RgnRect& rect) noexcept : data_(nullptr) {
  if (rect.isEmpty())
    data_ = &emptyData_;
  else
    extents_ = rect;
}

Region::Region(const Region& other) : extents_(other.extents_), data_(other.data_) {
  if (data_ && data_->size != 0) {
    data_ = allocate(other.data_->numRects);
    data_->numRects = other.data_->numRects;
    std::memcpy(data_->rects(), other.data_->rects(), sizeof(RgnRect) * data_->numRects);
  }
}

Region::Region(Region&& other) noexcept
    : extents_(other.extents_), data_(std::exchange(other.data_, &emptyData_)) {
  other.extents_ = RgnRect();
}

Region& Region::operator=(const Region& other) {
  if (this != &other) {
    Region copy(other);
    *this = std::move(copy);
  }
  return *this;
}

Region& Region::operator=(Region&& other) noexcept {
  if (this != &other) {
    release(data_);
    extents_ = std::exchange(other.extents_, RgnRect());
    data_ = std::exchange(other.data_, &emptyData_);
  }
  return *this;
}

Region::~Region() {
  release(data_);
}

Region::Data* Region::allocate(std::int32_t count) {
  void* p = std::malloc(sizeof(Data) + sizeof(RgnRect) * static_cast<std::size_t>(count));
  XN_ASSERT(p);
  Data* data = static_cast<Data*>(p);
  data->size = count;
  data->numRects = 0;
  return data;
}

void Region::release(Data* data) noexcept {
  // The shared empty block is never freed.
  if (data && data != &emptyData_)
    std::free(data);
}

Region Region::fromBands(const RgnRect* rects, int count) {
  if (count == 0)
    return Region();
  if (count == 1)
    return Region(rects[0]);
  Region region;
  region.data_ = allocate(count);
  region.data_->numRects = count;
  std::memcpy(region.data_->rects(), rects, sizeof(RgnRect) * count);
  RgnRect box(rects[0].x1, rects[0].y1, rects[0].x2, rects[count - 1].y2);
  for (int i = 1; i < count; ++i) {
    box.x1 = std::min(box.x1, rects[i].x1);
    box.x2 = std::max(box.x2, rects[i].x2);
  }
  region.extents_ = box;
  return region;
}

// Cuts the plane into horizontal strips at every top and bottom edge of both
// regions; in each strip the two sets of spans are combined by a sweep over
// their edges. A strip whose spans equal those of the strip just above it
// extends that band instead of starting one.
Region Region::combine(const Region& other, Operation operation) const {
  const RgnRect* a = rects();
  const RgnRect* b = other.rects();
  const int countA = numRects();
  const int countB = other.numRects();

  std::vector<std::int32_t> ys;
  ys.reserve(2 * (countA + countB));
  for (int i = 0; i < countA; ++i)
    ys.insert(ys.end(), {a[i].y1, a[i].y2});
  for (int i = 0; i < countB; ++i)
    ys.insert(ys.end(), {b[i].y1, b[i].y2});
  std::sort(ys.begin(), ys.end());
  ys.erase(std::unique(ys.begin(), ys.end()), ys.end());

  std::vector<RgnRect> out;
  std::vector<Span> spans;
  std::vector<Span> previousSpans;
  std::vector<std::int32_t> xs;
  std::size_t previousBand = 0;
  BandCursor cursorA(a, countA);
  BandCursor cursorB(b, countB);
  for (std::size_t k = 0; k + 1 < ys.size(); ++k) {
    const std::int32_t top = ys[k];
    const std::int32_t bottom = ys[k + 1];
    const Band bandA = cursorA.at(top);
    const Band bandB = cursorB.at(top);

    xs.clear();
    for (const RgnRect* r = bandA.begin; r != bandA.end; ++r)
      xs.insert(xs.end(), {r->x1, r->x2});
    for (const RgnRect* r = bandB.begin; r != bandB.end; ++r)
      xs.insert(xs.end(), {r->x1, r->x2});
    std::sort(xs.begin(), xs.end());
    xs.erase(std::unique(xs.begin(), xs.end()), xs.end());

    spans.clear();
    const RgnRect* inA = bandA.begin;
    const RgnRect* inB = bandB.begin;
    for (std::size_t i = 0; i + 1 < xs.size(); ++i) {
      const bool isA = covers(inA, bandA.end, xs[i]);
      const bool isB = covers(inB, bandB.end, xs[i]);
      const bool keep = operation == Operation::unite       ? isA || isB
                        : operation == Operation::intersect ? isA && isB
                                                            : isA && !isB;
      if (!keep)
        continue;
      if (!spans.empty() && spans.back().x2 == xs[i])
        spans.back().x2 = xs[i + 1];
      else
        spans.push_back({xs[i], xs[i + 1]});
    }
    if (spans.empty())
      continue;

    if (!out.empty() && out.back().y2 == top && spans == previousSpans) {
      for (std::size_t i = previousBand; i < out.size(); ++i)
        out[i].y2 = static_cast<std::int16_t>(bottom);
      continue;
    }
    previousBand = out.size();
    for (const Span& span : spans)
      out.emplace_back(static_cast<std::int16_t>(span.x1), static_cast<std::int16_t>(top),
                       static_cast<std::int16_t>(span.x2), static_cast<std::int16_t>(bottom));
    previousSpans.swap(spans);
  }
  return fromBands(out.data(), static_cast<int>(out.size()));
}

Region Region::unionWith(const Region& other) const {
  return combine(other, Operation::unite);
}

Region Region::intersection(const Region& other) const {
  return combine(other, Operation::intersect);
}

Region Region::difference(const Region& other) const {
  return combine(other, Operation::subtract);
}

void Region::translate(Point delta) {
  if (isEmpty())
    return;
  const Rect moved = Rect(extents_).translate(delta);
  if (Rect(RgnRect(moved)) == moved) {
    auto shift = [&](RgnRect& r) {
      r = RgnRect(r.x1 + delta.x, r.y1 + delta.y, r.x2 + delta.x, r.y2 + delta.y);
    };
    shift(extents_);
    if (data_)
      std::for_each(data_->rects(), data_->rects() + data_->numRects, shift);
    return;
  }
  // Part of the region leaves the coordinate range: rebuild it from the clamped
  // rectangles, which may have collapsed into fewer bands.
  Region result;
  for (int i = 0; i < numRects(); ++i)
    result = result.unionWith(Region(Rect(rects()[i]).translate(delta)));
  *this = std::move(result);
}

bool operator==(const Region& a, const Region& b) noexcept {
  const int count = a.numRects();
  return count == b.numRects() && std::equal(a.rects(), a.rects() + count, b.rects());
}

} // namespace rfb
