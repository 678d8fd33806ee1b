#include "mui/MuSlider.h"

#include "mui/MuContainer.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace mui {

MuSliderFactory muSliderFactory = nullptr;

namespace {

// Room for the thumb and the ticks on each axis, in units.
constexpr int chromeUnits = 60;

} // namespace

MuSlider::MuSlider(MuContainer* parent, const char* name, int sliderStyle)
    : MuElement(parent, name), sliderStyle_(sliderStyle) {}

MuSlider* MuSlider::create(MuContainer* parent, const char* name, int sliderStyle) {
  XN_ASSERT(muSliderFactory);
  MuSlider* slider = muSliderFactory(parent, name, sliderStyle);
  parent->add(slider);
  return slider;
}

int MuSlider::limitToRange16(int value) noexcept {
  return std::clamp(value, static_cast<int>(INT16_MIN), static_cast<int>(INT16_MAX));
}

int MuSlider::minWidth(int height) {
  return MuElement::minWidth(height) + Mui::toPixels(chromeUnits);
}

int MuSlider::minHeight(int width) {
  return MuElement::minHeight(width) + Mui::toPixels(chromeUnits);
}

const char* MuSlider::typeName() {
  return "slider";
}

plat::String MuSlider::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Slider\nvalue %d\nmin %d\nmax %d\n", getValue(), getMin(), getMax());
  return text.takeString();
}

bool MuSlider::perform(const char* action, const char* argument) {
  if (std::strcmp(action, "click") != 0 || !argument || !canPerform(this, true))
    return false;
  setValue(decimalArgument(argument));
  notify(this, EventChanged);
  return true;
}

} // namespace mui
