// Sliders on Qt: the user's keys move the thumb and raise EventChanged, the
// program's changes are silent, and a disabled slider takes no input.
#include "QtForm.h"

#include "mui/MuSlider.h"
#include "mui/qt/MuSliderQt.h"
#include "mui/tests/EventLog.h"

#include <gmock/gmock.h>

#include <QSlider>
#include <QTest>

namespace mui::test {
namespace {

using SlidersQt = QtForm;

TEST_F(SlidersQt, KeysMoveTheThumbAndOnlyTheUserRaisesEvents) {
  auto* slider = static_cast<MuSliderQt*>(MuSlider::create(dialog.get(), "zoom"));
  dialog->setVisible(true);
  QApplication::setActiveWindow(window());
  EventLog log;
  slider->addObserver(&log);
  slider->setRange(-50000, 10);
  slider->setValue(5);
  EXPECT_EQ(slider->getMin(), -32768);
  slider->setFocus();
  QTest::keyClick(slider->widget(), Qt::Key_Right);
  QTest::keyClick(slider->widget(), Qt::Key_End);
  EXPECT_EQ(slider->getValue(), 10);
  EXPECT_THAT(log.take(), testing::ElementsAre("zoom changed", "zoom changed"));
  EXPECT_TRUE(slider->perform("click", "-3"));
  EXPECT_EQ(slider->widget()->value(), -3);
  EXPECT_THAT(log.take(), testing::ElementsAre("zoom changed"));

  slider->setEnabled(false);
  QTest::keyClick(slider->widget(), Qt::Key_Left);
  QTest::mouseClick(slider->widget(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
  EXPECT_EQ(slider->getValue(), -3);
  EXPECT_THAT(log.take(), testing::IsEmpty());
  dialog->setVisible(false);
}

// Ticks stand at round steps that keep them apart on the slider's length.
TEST_F(SlidersQt, TicksStayApart) {
  auto* slider = static_cast<MuSliderQt*>(MuSlider::create(dialog.get(), "zoom"));
  struct Row {
    int max;
    int width;
    int interval;
  } rows[] = {{10, 200, 1}, {100, 200, 2}, {100, 100, 5}, {1000, 200, 20}, {30000, 100, 2000}};
  for (const Row& r : rows) {
    slider->setSize({r.width, 30});
    slider->setRange(0, r.max);
    EXPECT_EQ(slider->widget()->tickInterval(), r.interval) << r.max << " " << r.width;
  }
}

} // namespace
} // namespace mui::test
