#include "mui/qt/MuSliderQt.h"

#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MuCommonQt.h"

#include <QSignalBlocker>
#include <QSlider>
#include <memory>

namespace mui {

namespace {

// Ticks closer than this many pixels run together.
constexpr int tickSpacing = 4;

} // namespace

MuSliderQt::MuSliderQt(MuContainer* parent, const char* name, int sliderStyle)
    : MuSlider(parent, name, sliderStyle) {
  auto* slider = new QSlider(isVertical() ? Qt::Vertical : Qt::Horizontal,
                             MuCommonQt::parentWidgetFor(parent));
  slider->setRange(0, initialMax);
  slider->setTickPosition(isVertical() ? QSlider::TicksRight : QSlider::TicksBelow);
  setCommon(std::make_unique<MuCommonQt>(this, slider));
  updateTicks();
  QObject::connect(slider, &QSlider::valueChanged, slider,
                   [this] { callFromQt([this] { movedByUser(); }); });
}

MuSlider* MuSliderQt::make(MuContainer* parent, const char* name, int sliderStyle) {
  return new MuSliderQt(parent, name, sliderStyle);
}

QSlider* MuSliderQt::widget() const {
  return static_cast<QSlider*>(MuCommonQt::of(const_cast<MuSliderQt*>(this))->widget());
}

void MuSliderQt::setValue(int value) {
  const QSignalBlocker silent(widget());
  widget()->setValue(value);
}

int MuSliderQt::getValue() {
  return widget()->value();
}

void MuSliderQt::setRange(int min, int max) {
  const QSignalBlocker silent(widget());
  widget()->setRange(limitToRange16(min), limitToRange16(max));
  updateTicks();
}

int MuSliderQt::getMin() {
  return widget()->minimum();
}

int MuSliderQt::getMax() {
  return widget()->maximum();
}

void MuSliderQt::setSize(Size size) {
  MuSlider::setSize(size);
  updateTicks();
}

// The smallest of 1, 2, 5, 10, 20, 50... steps that keeps ticks apart.
void MuSliderQt::updateTicks() {
  const long long span = static_cast<long long>(widget()->maximum()) - widget()->minimum();
  const long long length = isVertical() ? widget()->height() : widget()->width();
  const auto apart = [&](long long interval) {
    return interval >= span || length * interval >= tickSpacing * span;
  };
  long long interval = 1;
  for (long long decade = 1; !apart(interval); decade *= 10) {
    for (int factor : {1, 2, 5}) {
      interval = factor * decade;
      if (apart(interval))
        break;
    }
  }
  widget()->setTickInterval(static_cast<int>(interval));
}

} // namespace mui
