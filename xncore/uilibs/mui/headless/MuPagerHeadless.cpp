#include "mui/headless/MuPagerHeadless.h"

#include "mui/Mui.h"
#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/TextModelHeadless.h"

namespace mui {

MuPagerHeadless::MuPagerHeadless(MuContainer* parent, const char* name, int pagerStyle)
    : MuPager(parent, name, pagerStyle) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuPager* MuPagerHeadless::make(MuContainer* parent, const char* name, int pagerStyle) {
  return new MuPagerHeadless(parent, name, pagerStyle);
}

int MuPagerHeadless::tabHeight() {
  return TextModelHeadless(effectiveStyle(), true).lineHeight() + 2 * Mui::metric(MetricLabelGap);
}

void MuPagerHeadless::pageAdded(int index) {
  if (hasTabs())
    tabs_.insert(tabs_.begin() + index, caption(index));
}

void MuPagerHeadless::pageRemoved(int index) {
  if (hasTabs())
    tabs_.erase(tabs_.begin() + index);
}

void MuPagerHeadless::titleChanged(int index) {
  if (hasTabs())
    tabs_[static_cast<std::size_t>(index)] = caption(index);
}

void MuPagerHeadless::currentChanged() {
  currentTab_ = current();
}

Rect MuPagerHeadless::pageArea() {
  const Size size = getSize();
  if (!hasTabs())
    return Rect::at({0, 0}, size);
  const int margin = Mui::metric(MetricFrameMargin);
  return Rect(margin, tabHeight() + margin, size.width - margin, size.height - margin);
}

void MuPagerHeadless::pickTab(int index) {
  if (!hasTabs() || !MuCommonHeadless::of(this)->isEnabled() || index == currentTab_)
    return;
  currentTab_ = index;
  select(index);
}

} // namespace mui
