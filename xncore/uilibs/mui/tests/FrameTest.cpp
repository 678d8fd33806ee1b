// Frames on the headless binding: their measure and layout for each type,
// the margin, the shown title, describe(), and that nothing raises an event.
#include "EventCounter.h"
#include "HeadlessForm.h"

#include "mui/MuFrame.h"

#include <gmock/gmock.h>

#include <climits>
#include <string>

namespace mui::test {
namespace {

using Frame = HeadlessForm;

// At "ppmm" 4 the built-in frame margin is 8 pixels; a title takes 14 pixels
// in the measure and 12 in the layout, a border 2. A code point is 7 wide and a
// line 16 high; the child "Hello world" is 77 wide.
struct MeasureCase {
  int type;
  bool child;
  int width;
  int minHeight;
  int minWidth;
};

TEST_F(Frame, MeasuresItsChildWithMarginTitleAndBorder) {
  const MeasureCase cases[] = {
      {MuFrame::Plain, false, 100, 16, 16},
      {MuFrame::Titled, false, 100, 16 + 14, 16},
      {MuFrame::Bordered, false, 100, 16 + 2, 16 + 2},
      {MuFrame::Header, true, 200, 16 + 16, 16 + 77},
      {MuFrame::Footer, true, 200, 16 + 16, 16 + 77},
      {MuFrame::Titled, true, 200, 16 + 14 + 16, 16 + 77},
      {MuFrame::Bordered, true, 200, 16 + 2 + 16, 16 + 2 + 77},
      // 60 less margins and border leaves 42 pixels: six code points a line.
      {MuFrame::Bordered, true, 60, 16 + 2 + 32, 16 + 2 + 77},
      // 60 less margins leaves 44 pixels: still two lines.
      {MuFrame::Plain, true, 60, 16 + 32, 16 + 77},
  };
  for (const MeasureCase& c : cases) {
    MuFrame* frame = MuFrame::create(dialog.get(), "f", "Title", c.type);
    if (c.child)
      TextLeaf::create(frame, "t", "Hello world");
    EXPECT_EQ(frame->minHeight(c.width), c.minHeight) << c.type << " at " << c.width;
    EXPECT_EQ(frame->minWidth(INT_MAX), c.minWidth) << c.type;
    dialog->removeChild(frame);
  }
}

TEST_F(Frame, PutsTheChildInsideTheMarginAndBelowTheTitle) {
  struct LayoutCase {
    int type;
    Size margin;
    Point position;
    Size size;
  } cases[] = {
      {MuFrame::Plain, {8, 8}, {8, 8}, {184, 84}},
      {MuFrame::Bordered, {8, 8}, {8, 8}, {184, 84}},
      {MuFrame::Titled, {8, 8}, {8, 20}, {184, 72}},
      {MuFrame::Footer, {0, 5}, {0, 5}, {200, 90}},
  };
  for (const LayoutCase& c : cases) {
    MuFrame* frame = MuFrame::create(dialog.get(), "f", nullptr, c.type);
    TextLeaf* child = TextLeaf::create(frame, "t", "x");
    frame->setMargin(c.margin);
    EXPECT_EQ(child->getPosition(), Point()) << "setMargin doesn't lay out";
    frame->setSize({200, 100});
    EXPECT_EQ(child->getPosition(), c.position) << c.type;
    EXPECT_EQ(child->getSize(), c.size) << c.type;
    dialog->removeChild(frame);
  }
}

TEST_F(Frame, RelayoutRepaintsTheWholeFrame) {
  MuFrame* frame = MuFrame::create(dialog.get(), "f", nullptr, MuFrame::Header);
  frame->setSize({50, 20});
  MuCommonHeadless::of(frame)->clearCalls();
  frame->relayout();
  EXPECT_THAT(MuCommonHeadless::of(frame)->calls(), testing::ElementsAre("invalidate 0,0,50,20"));
}

TEST_F(Frame, ShowsEveryAmpersandOfItsTitle) {
  MuFrame* frame = MuFrame::create(dialog.get(), "f", "Tom & Jerry && co", MuFrame::Titled);
  EXPECT_STREQ(frame->shownTitle().get(), "Tom && Jerry &&&& co");
  EXPECT_STREQ(frame->label(), "Tom & Jerry && co");
  EXPECT_TRUE(MuFrame::create(dialog.get(), "g", nullptr, MuFrame::Titled)->shownTitle().isNull());
}

TEST_F(Frame, DescribesTypeAndMarginAndRaisesNoEvent) {
  EventCounter counter;
  dialog->addObserver(&counter);
  const struct {
    int type;
    const char* word;
  } types[] = {{0, "Plain"},  {1, "Titled"},   {2, "Header"},
               {3, "Footer"}, {4, "Bordered"}, {9, "Unknown"}};
  for (const auto& t : types) {
    MuFrame* frame = MuFrame::create(dialog.get(), "f", "Group", t.type);
    frame->setMargin({3, 5});
    EXPECT_EQ(std::string(frame->describe().get()),
              std::string("shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 1,1\nlabel Group\n"
                          "element Frame\ntype ") +
                  t.word + "\nmargin 3,5\n");
    EXPECT_STREQ(frame->typeName(), "frame");
    EXPECT_FALSE(frame->perform("click", "0"));
    EXPECT_EQ(dialog->find("f"), frame);
    dialog->removeChild(frame);
  }
  EXPECT_EQ(counter.total, 0);
  dialog->removeObserver(&counter);
}

TEST_F(Frame, StyleSetOnTheFrameReachesItsChild) {
  MuFrame* frame = MuFrame::create(dialog.get(), "f", nullptr, MuFrame::Plain);
  TextLeaf* child = TextLeaf::create(frame, "t", "x");
  frame->setBackgroundColour("helpBg");
  EXPECT_STREQ(child->effectiveStyle().backgroundColour.get(), "helpBg");
  EXPECT_THAT(child->peer()->calls(), testing::Contains("styleChanged"));
}

using FrameDeath = HeadlessForm;

TEST_F(FrameDeath, CreatingWithoutTheHookFailsWithItsName) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(
      {
        muFrameFactory = nullptr;
        MuFrame::create(dialog.get(), "f", nullptr, 0);
      },
      "muFrameFactory");
}

} // namespace
} // namespace mui::test
