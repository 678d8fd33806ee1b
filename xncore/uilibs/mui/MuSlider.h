// mui::MuSlider: a thumb on a scale with tick marks, across or upright. The
// binding holds the value and the range; the abstract half measures the
// slider, drives it by perform() and raises EventChanged when the user moves
// the thumb.
#pragma once

#include "mui/MuElement.h"

namespace mui {

class MuSlider : public MuElement {
public:
  enum Style : int { Vertical = 0x01 };

  static MuSlider* create(MuContainer* parent, const char* name, int sliderStyle = 0);

  /// Moves the thumb, within the range; no event.
  virtual void setValue(int value) = 0;
  virtual int getValue() = 0;
  /// Both ends are limited to 16 bits, as the native control keeps them.
  virtual void setRange(int min, int max) = 0;
  virtual int getMin() = 0;
  virtual int getMax() = 0;

  /// The base measure and 60 units on each axis.
  int minWidth(int height) override;
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;
  /// "click" with a number: the thumb goes there, then EventChanged, if the
  /// slider is idle and shown.
  bool perform(const char* action, const char* argument) override;

  int sliderStyle() const noexcept { return sliderStyle_; }
  bool isVertical() const noexcept { return (sliderStyle_ & Vertical) != 0; }

  /// A range end as the native control can hold it.
  static int limitToRange16(int value) noexcept;
  /// A slider starts with the range 0 to 100.
  static constexpr int initialMax = 100;

protected:
  MuSlider(MuContainer* parent, const char* name, int sliderStyle);

  /// Binding: the user moved the thumb.
  void movedByUser() { notify(this, EventChanged); }

private:
  int sliderStyle_;
};

/// The hook through which MuSlider::create makes the binding's slider.
using MuSliderFactory = MuSlider* (*)(MuContainer* parent, const char* name, int sliderStyle);
extern MuSliderFactory muSliderFactory;

} // namespace mui
