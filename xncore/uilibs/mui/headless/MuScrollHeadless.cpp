#include "mui/headless/MuScrollHeadless.h"

#include "mui/headless/MuCommonHeadless.h"

#include <algorithm>

namespace mui {

MuScrollHeadless::MuScrollHeadless(MuContainer* parent, const char* name, int scrollStyle)
    : MuScroll(parent, name, scrollStyle) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuScroll* MuScrollHeadless::make(MuContainer* parent, const char* name, int scrollStyle) {
  return new MuScrollHeadless(parent, name, scrollStyle);
}

// A bar that doesn't show holds its position at 0, as a hidden bar of a platform does.
void MuScrollHeadless::setScrollPosition(Point position) {
  position_ = {std::clamp(position.x, 0, range_.x), std::clamp(position.y, 0, range_.y)};
}

void MuScrollHeadless::setBars(bool horizontal, bool vertical, Size content, Size available) {
  horizontal_ = horizontal;
  vertical_ = vertical;
  range_ = {horizontal ? std::max(0, content.width - available.width) : 0,
            vertical ? std::max(0, content.height - available.height) : 0};
  setScrollPosition(position_);
}

void MuScrollHeadless::dragBarsTo(Point position) {
  setScrollPosition(position);
  layout();
}

} // namespace mui
