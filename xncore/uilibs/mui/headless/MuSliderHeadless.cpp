#include "mui/headless/MuSliderHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "plat/DString.h"

#include <algorithm>

namespace mui {

MuSliderHeadless::MuSliderHeadless(MuContainer* parent, const char* name, int sliderStyle)
    : MuSlider(parent, name, sliderStyle) {
  MuCommonHeadless::Traits traits;
  traits.focusable = true;
  setCommon(std::make_unique<MuCommonHeadless>(this, traits));
}

MuSlider* MuSliderHeadless::make(MuContainer* parent, const char* name, int sliderStyle) {
  return new MuSliderHeadless(parent, name, sliderStyle);
}

MuCommonHeadless* MuSliderHeadless::peer() {
  return MuCommonHeadless::of(this);
}

int MuSliderHeadless::clamped(int value) const noexcept {
  return std::clamp(value, min_, std::max(min_, max_));
}

void MuSliderHeadless::setValue(int value) {
  peer()->record(plat::strFormat("setValue %d", value).get());
  value_ = clamped(value);
}

void MuSliderHeadless::setRange(int min, int max) {
  peer()->record(plat::strFormat("setRange %d,%d", min, max).get());
  min_ = limitToRange16(min);
  max_ = limitToRange16(max);
  value_ = clamped(value_);
}

bool MuSliderHeadless::moveTo(int value) {
  if (!peer()->acceptsInput())
    return false;
  const int target = clamped(value);
  if (target == value_)
    return true;
  value_ = target;
  movedByUser();
  return true;
}

} // namespace mui
