// Sliders on the headless binding: measure, the 16-bit range, the user's
// moves and perform(), and describe().
#include "EventLog.h"
#include "HeadlessForm.h"

#include "mui/MuSlider.h"
#include "mui/headless/MuSliderHeadless.h"

#include <gmock/gmock.h>

#include <climits>

namespace mui::test {
namespace {

using Sliders = HeadlessForm;

TEST_F(Sliders, MeasureRangeAndDescribe) {
  MuSlider* slider = MuSlider::create(dialog.get(), "zoom", MuSlider::Vertical);
  // 60 units are 30 pixels beside an empty text, which is one line high.
  EXPECT_EQ(slider->minWidth(0), 30);
  EXPECT_EQ(slider->minHeight(INT_MAX), 16 + 30);
  EXPECT_TRUE(slider->isVertical());
  EXPECT_EQ(slider->getMax(), 100);
  slider->setValue(70);
  slider->setRange(-40000, 40000);
  EXPECT_EQ(slider->getMin(), -32768);
  EXPECT_EQ(slider->getMax(), 32767);
  slider->setRange(-5, 5);
  EXPECT_EQ(slider->getValue(), 5);
  slider->setValue(-9);
  EXPECT_THAT(slider->describe().get(),
              testing::EndsWith("size 1,1\nelement Slider\nvalue -5\nmin -5\nmax 5\n"));
  EXPECT_STREQ(slider->typeName(), "slider");
}

TEST_F(Sliders, OnlyTheUserAndPerformRaiseEvents) {
  MuSlider* slider = MuSlider::create(dialog.get(), "zoom");
  auto* user = static_cast<MuSliderHeadless*>(slider);
  dialog->setVisible(true);
  EventLog log;
  slider->addObserver(&log);
  slider->setValue(10);
  slider->setRange(0, 50);
  EXPECT_TRUE(user->moveTo(20));
  EXPECT_TRUE(user->moveTo(20)); // the thumb did not move
  EXPECT_TRUE(user->moveTo(80)); // as far as the range goes
  EXPECT_EQ(slider->getValue(), 50);
  EXPECT_TRUE(slider->perform("click", "7"));
  EXPECT_EQ(slider->getValue(), 7);
  EXPECT_THAT(log.take(), testing::ElementsAre("zoom changed", "zoom changed", "zoom changed"));

  slider->setEnabled(false);
  EXPECT_FALSE(user->moveTo(30));
  EXPECT_FALSE(slider->perform("click", "30"));
  slider->setEnabled(true);
  slider->setLocked(true);
  EXPECT_FALSE(user->moveTo(30));
  slider->setLocked(false);
  slider->setVisible(false);
  EXPECT_FALSE(user->moveTo(30));
  EXPECT_FALSE(slider->perform("click", "30"));
  EXPECT_FALSE(slider->perform("click", nullptr));
  EXPECT_EQ(slider->getValue(), 7);
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

} // namespace
} // namespace mui::test
