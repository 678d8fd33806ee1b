// Scrolls on the headless binding (bars 16 pixels thick, a border of 1):
// which bars a child needs, the child's size and place, the measures that
// reserve room for the bars, and scrolling to a part of the child.
#include "HeadlessForm.h"

#include "mui/MuScroll.h"
#include "mui/MuSpacer.h"
#include "mui/headless/MuScrollHeadless.h"

namespace mui::test {
namespace {

constexpr int V = MuScroll::VerticalBar;
constexpr int H = MuScroll::HorizontalBar;

class Scrolls : public HeadlessForm {
protected:
  /// A scroll of `style` and `size` around a spacer whose minimum is `content`.
  MuScrollHeadless* makeScroll(int style, Size content, Size size = {100, 100}) {
    auto* scroll = static_cast<MuScrollHeadless*>(MuScroll::create(dialog.get(), "s", style));
    child = MuSpacer::create(scroll, content.width, content.height);
    scroll->setSize(size);
    return scroll;
  }

  MuSpacer* child = nullptr;
};

TEST_F(Scrolls, TheChildGetsTheBarsItNeedsAndAtLeastTheVisibleSize) {
  struct Row {
    int style;
    Size content;
    bool horizontal;
    bool vertical;
    Size childSize;
  } rows[] = {
      {V, {50, 300}, false, true, {84, 300}},
      {V, {500, 50}, false, false, {100, 100}}, // too wide, but no bar may show
      {V | H, {90, 95}, false, false, {100, 100}},
      {V | H, {110, 95}, true, true, {110, 95}}, // the horizontal bar takes the room
      {V | H, {300, 300}, true, true, {300, 300}},
      {H, {300, 300}, true, false, {300, 84}},
      {0, {300, 300}, false, false, {100, 100}},
  };
  for (const Row& row : rows) {
    MuScrollHeadless* scroll = makeScroll(row.style, row.content);
    EXPECT_EQ(scroll->showsHorizontalBar(), row.horizontal)
        << row.style << " " << row.content.width;
    EXPECT_EQ(scroll->showsVerticalBar(), row.vertical) << row.style << " " << row.content.width;
    EXPECT_EQ(child->getSize(), row.childSize) << row.style << " " << row.content.width;
    EXPECT_EQ(child->getPosition(), Point(0, 0));
    dialog->removeChild(scroll);
  }
}

TEST_F(Scrolls, MeasuresReserveTheBordersAndEveryAllowedBar) {
  MuScrollHeadless* both = makeScroll(V | H | MuScroll::ThinBorder, {50, 300});
  EXPECT_EQ(both->chromeSize(), Size(18, 18));
  EXPECT_EQ(both->minHeight(10), 318);
  EXPECT_EQ(both->minWidth(10), 68);
  both->setMaxSize({60, 200});
  EXPECT_EQ(both->minHeight(10), 200);
  EXPECT_EQ(both->minWidth(10), 60);

  MuScrollHeadless* vertical = makeScroll(V, {50, 300});
  EXPECT_EQ(vertical->chromeSize(), Size(16, 0));
  EXPECT_EQ(vertical->minWidth(10), 66);
  EXPECT_EQ(vertical->minHeight(10), 300);
  auto* empty = static_cast<MuScrollHeadless*>(MuScroll::create(dialog.get(), "e", V));
  EXPECT_EQ(empty->minHeight(10), 0);
  empty->layout();
  EXPECT_STREQ(empty->describe().get(), "shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 1,1\n"
                                        "element Scroll\nstyle 1\n");
}

TEST_F(Scrolls, ScrollingMovesTheChildWithinItsRange) {
  MuScrollHeadless* scroll = makeScroll(V, {50, 300});
  EXPECT_EQ(scroll->range(), Point(0, 200));
  scroll->dragBarsTo({30, 150});
  EXPECT_EQ(child->getPosition(), Point(0, -150));
  scroll->dragBarsTo({0, 999});
  EXPECT_EQ(child->getPosition(), Point(0, -200));
  scroll->scrollToShow(Rect(0, 10, 10, 30));
  EXPECT_EQ(child->getPosition(), Point(0, -10));
  scroll->scrollToShow(Rect(0, 250, 10, 290));
  EXPECT_EQ(child->getPosition(), Point(0, -190));
  scroll->scrollToShow(Rect(0, 200, 10, 240)); // already shown
  EXPECT_EQ(child->getPosition(), Point(0, -190));
  scroll->setSize({100, 400}); // room for all: no bar, back at the top
  EXPECT_FALSE(scroll->showsVerticalBar());
  EXPECT_EQ(child->getPosition(), Point(0, 0));
}

} // namespace
} // namespace mui::test
