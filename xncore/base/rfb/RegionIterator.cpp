#include "rfb/RegionIterator.h"

namespace rfb {

RegionIterator::RegionIterator(const Region& region, Point direction)
    : rects_(region.rects()), count_(region.numRects()),
      stepX_(direction.x < 0 || (direction.x == 0 && direction.y < 0) ? -1 : 1),
      stepY_(direction.y < 0 || (direction.y == 0 && direction.x < 0) ? -1 : 1) {
  if (count_ > 0)
    enterBand(stepY_ > 0 ? 0 : count_ - 1);
}

void RegionIterator::enterBand(int i) {
  bandBegin_ = i;
  while (bandBegin_ > 0 && rects_[bandBegin_ - 1].y1 == rects_[i].y1)
    --bandBegin_;
  bandEnd_ = i + 1;
  while (bandEnd_ < count_ && rects_[bandEnd_].y1 == rects_[i].y1)
    ++bandEnd_;
  position_ = stepX_ > 0 ? bandBegin_ : bandEnd_ - 1;
}

bool RegionIterator::next(Rect& rect) {
  if (position_ < bandBegin_ || position_ >= bandEnd_) {
    const int following = stepY_ > 0 ? bandEnd_ : bandBegin_ - 1;
    if (following < 0 || following >= count_)
      return false;
    enterBand(following);
  }
  rect = Rect(rects_[position_]);
  position_ += stepX_;
  return true;
}

} // namespace rfb
