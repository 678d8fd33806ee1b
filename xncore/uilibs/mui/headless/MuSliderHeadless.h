// mui::MuSliderHeadless: the slider of the headless binding, its value and
// range in memory, clamped as a native slider clamps them. Tests move the
// thumb as the user would.
#pragma once

#include "mui/MuSlider.h"

namespace mui {

class MuCommonHeadless;

class MuSliderHeadless : public MuSlider {
public:
  static MuSlider* make(MuContainer* parent, const char* name, int sliderStyle);

  void setValue(int value) override;
  int getValue() override { return value_; }
  void setRange(int min, int max) override;
  int getMin() override { return min_; }
  int getMax() override { return max_; }

  MuCommonHeadless* peer();
  /// The user drags the thumb to `value` (or as near as the range allows);
  /// false when the slider took no input.
  bool moveTo(int value);

private:
  MuSliderHeadless(MuContainer* parent, const char* name, int sliderStyle);
  int clamped(int value) const noexcept;

  int value_ = 0;
  int min_ = 0;
  int max_ = initialMax;
};

} // namespace mui
