// Buttons on the headless binding: their measure for each kind and option,
// describe(), and the clicks of the user and of perform(), which a disabled,
// locked or hidden button ignores.
#include "EventLog.h"
#include "HeadlessForm.h"

#include "mui/MuButton.h"
#include "mui/headless/MuButtonHeadless.h"
#include "rfb/ManagedPixelBuffer.h"

#include <gmock/gmock.h>

#include <climits>

namespace mui::test {
namespace {

using Buttons = HeadlessForm;

MuButtonHeadless* headless(MuButton* button) {
  return static_cast<MuButtonHeadless*>(button);
}

// At "ppmm" 4 a code point is 7 pixels wide and a line 16 high; the built-in
// metrics make a least button 68 by 24 pixels; 8 units are 4 pixels.
TEST_F(Buttons, MeasureFollowsKindOptionsAndImage) {
  struct Row {
    const char* label;
    int type;
    int options;
    Size image;
    int width;
    int height;
  } rows[] = {
      {"OK", MuButton::Normal, 0, {}, 68, 24},
      // A lone '&' marks the mnemonic and takes no room: 21 code points.
      {"Refresh Users & Groups", MuButton::Normal, 0, {}, 147 + 12, 24},
      {"Add entry", MuButton::Normal, MuButton::DropDown, {}, 63 + 20 + 12, 24},
      {"Help", MuButton::Hyperlink, 0, {}, 28, 16},
      {"Help", MuButton::Hyperlink, MuButton::DropDown, {}, 48, 16},
      {"Edit", MuButton::Normal, MuButton::Flat, {}, 28, 16},
      {"", MuButton::Normal, 0, {}, 0, 16},
      // Image and label: the gap, then the padding and the floors.
      {"OK", MuButton::Normal, 0, {20, 20}, 68, 20 + 8},
      {"Refresh now", MuButton::Normal, 0, {20, 30}, 77 + 4 + 20 + 12, 30 + 8},
      // An image alone: its gap and padding, and no floor at all.
      {"", MuButton::Normal, 0, {20, 20}, 24, 26},
      {"", MuButton::Normal, MuButton::Flat, {20, 20}, 20, 20},
      {"Edit", MuButton::Normal, MuButton::Flat, {20, 10}, 28 + 4 + 20, 16},
      // With an image a labelled link gets the least height too.
      {"Help", MuButton::Hyperlink, 0, {12, 10}, 28 + 4 + 12, 24},
  };
  for (const Row& r : rows) {
    MuButton* button = MuButton::create(dialog.get(), "b", r.label, r.type, r.options);
    if (r.image.width > 0)
      button->setImageBuffer(new rfb::ManagedPixelBuffer(rfb::PixelFormat(), Rect::at({}, r.image)),
                             true, MuButton::ImageNormal);
    EXPECT_EQ(button->minWidth(0), r.width) << r.label << " " << r.options;
    EXPECT_EQ(button->minHeight(INT_MAX), r.height) << r.label << " " << r.options;
    dialog->remove(button);
  }
}

TEST_F(Buttons, NamedImagesComeFromTheProgramsImages) {
  MuButton* button = MuButton::create(dialog.get(), "b", "");
  const Size size(16, 16);
  button->setImage("accept", &size, MuButton::ImageNormal);
  EXPECT_EQ(button->minWidth(0), 16 + 4);
  EXPECT_EQ(button->minHeight(INT_MAX), 16 + 6);
  // A name without an image shows nothing and takes no room.
  button->setImage("no-such-image", nullptr, MuButton::ImageNormal);
  EXPECT_EQ(button->minWidth(0), 0);
  EXPECT_THAT(button->describe().get(), testing::EndsWith("image no-such-image\n"));
}

TEST_F(Buttons, LabelsWrapAndAShieldTakesRoom) {
  MuButton* button = MuButton::create(dialog.get(), "b", "Allow view only");
  // Seven code points a line at 50 pixels: three lines.
  EXPECT_EQ(button->minHeight(50), 48);
  EXPECT_EQ(button->minHeight(INT_MAX), 24);
  button->setLabel("Apply");
  EXPECT_EQ(button->minWidth(0), 68);
  button->setShield(true);
  EXPECT_EQ(button->minWidth(0), 35 + 40 + 12);
  EXPECT_EQ(headless(button)->peer()->text(), std::string("Apply"));
}

TEST_F(Buttons, CustomButtonsAreTheirImageWithTheLabelInsideTheMargins) {
  MuButton* button = MuButton::create(dialog.get(), "b", "Go", MuButton::Custom);
  rfb::ManagedPixelBuffer image(rfb::PixelFormat(), rfb::Rect(0, 0, 40, 30));
  button->setImageBuffer(&image, false, MuButton::ImageNormal);
  const Point topLeft(4, 2);
  const Point bottomRight(6, 3);
  button->setTextMargins(&topLeft, &bottomRight);
  EXPECT_EQ(button->minWidth(0), 40);
  EXPECT_EQ(button->minHeight(INT_MAX), 30);
  button->setLabel("Continue now");
  EXPECT_EQ(button->minWidth(0), 84 + 10);
  // The text wraps inside the margins: 94 - 10 pixels hold twelve code points.
  EXPECT_EQ(button->minHeight(94), 30);
  EXPECT_EQ(button->minHeight(60), 2 * 16 + 5);
  EXPECT_THAT(headless(button)->peer()->calls(), testing::Contains("invalidate 0,0,1,1"));
}

TEST_F(Buttons, DescribeGivesKindAndImage) {
  MuButton* plain = MuButton::create(dialog.get(), "ok", "&OK");
  EXPECT_THAT(plain->describe().get(),
              testing::EndsWith("label &OK\nelement Button\ntype Normal\n"));
  MuButton* link = MuButton::create(dialog.get(), "help", "Help", MuButton::Hyperlink);
  const Size size(16, 16);
  link->setImage("help", &size, MuButton::ImageNormal);
  link->setImage("help-hot", &size, MuButton::ImageHot);
  EXPECT_THAT(link->describe().get(), testing::EndsWith("type Hyperlink\nimage help\n"));
  EXPECT_THAT(MuButton::create(dialog.get(), "c", nullptr, MuButton::Custom)->describe().get(),
              testing::EndsWith("shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 1,1\n"
                                "element Button\ntype Custom\n"));
  EXPECT_STREQ(plain->typeName(), "button");
}

TEST_F(Buttons, ClicksOfTheUserAndOfPerformReachObserversOnlyWhenOperable) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  MuButton* button = MuButton::create(column, "ok", "OK");
  dialog->setVisible(true);
  EventLog log;
  dialog->addObserver(&log);

  struct Row {
    const char* state;
    void (*apply)(MuButton*, MuLayout*);
    bool clicks;
  } rows[] = {
      {"operable", [](MuButton*, MuLayout*) {}, true},
      {"disabled", [](MuButton* b, MuLayout*) { b->setEnabled(false); }, false},
      {"locked", [](MuButton* b, MuLayout*) { b->setLocked(true); }, false},
      {"hidden", [](MuButton* b, MuLayout*) { b->setVisible(false); }, false},
      {"in a hidden column", [](MuButton*, MuLayout* c) { c->setVisible(false); }, false},
  };
  for (const Row& r : rows) {
    r.apply(button, column);
    const std::vector<std::string> expected =
        r.clicks ? std::vector<std::string>{"ok clicked"} : std::vector<std::string>{};
    EXPECT_EQ(headless(button)->click(), r.clicks) << r.state;
    EXPECT_EQ(log.take(), expected) << r.state;
    button->setEnabled(true);
    button->setLocked(false);
    button->setVisible(true);
    column->setVisible(true);
  }
  // perform() needs the button idle, not shown.
  button->setVisible(false);
  EXPECT_TRUE(button->perform("click", nullptr));
  button->setLocked(true);
  EXPECT_FALSE(button->perform("click", nullptr));
  button->setLocked(false);
  EXPECT_FALSE(button->perform("press", nullptr));
  EXPECT_THAT(log.take(), testing::ElementsAre("ok clicked"));
  dialog->removeObserver(&log);
}

} // namespace
} // namespace mui::test
