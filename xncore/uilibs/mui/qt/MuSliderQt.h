// mui::MuSliderQt: the slider of the Qt binding, a QSlider with tick marks.
// Only the user's moves raise EventChanged; the program's own changes of
// value and range are silent. Ticks stand at every step of the range, or at
// round multiples of it when every step would crowd them together.
#pragma once

#include "mui/MuSlider.h"

class QSlider;

namespace mui {

class MuSliderQt : public MuSlider {
public:
  static MuSlider* make(MuContainer* parent, const char* name, int sliderStyle);

  void setValue(int value) override;
  int getValue() override;
  void setRange(int min, int max) override;
  int getMin() override;
  int getMax() override;
  void setSize(Size size) override;

  QSlider* widget() const;

private:
  MuSliderQt(MuContainer* parent, const char* name, int sliderStyle);
  void updateTicks();
};

} // namespace mui
