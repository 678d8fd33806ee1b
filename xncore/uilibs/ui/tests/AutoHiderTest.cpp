// The sliding of an auto-hiding panel on a clock that the test moves by hand:
// travel, timer intervals, steps by the time that passed, the delayed hide,
// the placing on each edge and the reports of each slide's start and end.

#include "ui/AutoHider.h"

#include "../../../base/plat/tests/ManualClock.h"

#include "plat/TimerManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ui {
namespace {

// A panel whose sizes the test sets; it keeps where it was put.
class Panel : public AutoHider, public AutoHider::Widget {
public:
  Panel(int edge, int revealSize, AutoHider::Callback* callback)
      : AutoHider(edge, revealSize, callback) {
    setWidget(this);
  }
  void setPosition(rfb::Point position) override { at = position; }
  rfb::Size getSize() override { return size; }
  rfb::Size getParentSize() override { return parentSize; }
  bool isFlipped() override { return flipped; }

  rfb::Size size{100, 50};
  rfb::Size parentSize{400, 300};
  bool flipped = false;
  rfb::Point at{12345, 12345};
};

// Each report as "sliding revealed".
struct States : AutoHider::Callback {
  void stateChanged(bool sliding, bool revealed, AutoHider*) override {
    seen.push_back(std::to_string(sliding) + " " + std::to_string(revealed));
  }
  std::vector<std::string> seen;
};

using Seen = std::vector<std::string>;

class AutoHiderTest : public testing::Test {
protected:
  void SetUp() override { plattest::fakeNow = 50 * plat::ticksPerSecond; }
  /// Moves the clock on by `ms` and fires what is due.
  void advance(int ms) {
    plattest::advanceMs(ms);
    timers.process();
  }

  plat::TimerManager timers{false, &plattest::fakeClock};
  States states;
};

TEST_F(AutoHiderTest, TravelIsTheExtentAcrossTheEdgeLessTheRevealedStripButAtLeastOne) {
  struct Case {
    int edge;
    rfb::Size size;
    int revealSize;
    int travel;
  };
  const Case cases[] = {
      {AutoHider::EdgeLeft, {100, 50}, 10, 90}, {AutoHider::EdgeRight, {100, 50}, 0, 100},
      {AutoHider::EdgeTop, {100, 50}, 10, 40},  {AutoHider::EdgeBottom, {100, 50}, 5, 45},
      {AutoHider::EdgeLeft, {10, 50}, 10, 1},   {AutoHider::EdgeBottom, {100, 4}, 10, 1},
  };
  for (const Case& c : cases) {
    Panel panel(c.edge, c.revealSize, nullptr);
    panel.size = c.size;
    EXPECT_EQ(panel.travel(), c.travel) << "edge " << c.edge << " reveal " << c.revealSize;
  }
}

TEST_F(AutoHiderTest, ZeroDurationJumpsAndReportsStartAndEndWithinTheCall) {
  Panel panel(AutoHider::EdgeLeft, 10, &states);
  EXPECT_EQ(panel.position(), 0.0) << "a new panel is shown";
  EXPECT_TRUE(panel.isRevealed());
  panel.slide(false, 0);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0"}));
  EXPECT_EQ(panel.position(), 1.0);
  EXPECT_EQ(panel.at, rfb::Point(-90, 125));
  EXPECT_EQ(timers.nextTimeout(), -1) << "no timer left running";
  panel.slide(true, 0);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0", "1 1", "0 1"}));
  EXPECT_EQ(panel.at, rfb::Point(0, 125));
}

TEST_F(AutoHiderTest, StepIntervalMovesAboutAPixelButNoFasterThanTwentyMilliseconds) {
  struct Case {
    int duration;
    int width;
    int interval;
  };
  // Travel is the width less the revealed 10 pixels; -1 is the default of 300.
  const Case cases[] = {
      {300, 20, 30}, {300, 110, 20}, {-1, 20, 30}, {1000, 60, 20}, {1000, 40, 33}};
  for (const Case& c : cases) {
    Panel panel(AutoHider::EdgeRight, 10, &states);
    panel.size = {c.width, 50};
    panel.slide(false, c.duration);
    EXPECT_TRUE(panel.isSliding());
    EXPECT_EQ(timers.nextTimeout(), c.interval) << c.duration << " ms over " << c.width - 10;
    EXPECT_EQ(panel.position(), 0.0) << "nothing moves before the first step";
  }
}

TEST_F(AutoHiderTest, StepsFollowTheTimeThatPassedAndTheLastLandsOnTheTarget) {
  Panel panel(AutoHider::EdgeLeft, 10, &states);
  panel.size = {110, 50};
  panel.slide(false, 300);
  advance(30);
  EXPECT_DOUBLE_EQ(panel.position(), 0.1);
  EXPECT_EQ(panel.at.x, -10);
  advance(150 - 30 + 7); // a late timer: the step covers all that passed
  EXPECT_NEAR(panel.position(), 157.0 / 300, 1e-9);
  EXPECT_EQ(states.seen, (Seen{"1 0"}));
  advance(500);
  EXPECT_EQ(panel.position(), 1.0) << "not past the target";
  EXPECT_EQ(panel.at.x, -100);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0"}));
  EXPECT_FALSE(panel.isSliding());

  panel.slide(true, 200);
  advance(1000);
  EXPECT_EQ(panel.position(), 0.0);
  EXPECT_EQ(panel.at.x, 0);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0", "1 1", "0 1"}));
  advance(1000);
  EXPECT_EQ(states.seen.size(), 4u) << "an ended slide reports nothing more";
}

TEST_F(AutoHiderTest, ReversalMidSlideGoesOnFromWhereItIsAndReportsOnlyTheLastEnd) {
  Panel panel(AutoHider::EdgeTop, 0, &states);
  panel.size = {100, 100};
  panel.slide(false, 200);
  advance(100);
  EXPECT_EQ(panel.position(), 0.5);
  panel.slide(true, 200);
  EXPECT_TRUE(panel.isRevealed());
  advance(50);
  EXPECT_EQ(panel.position(), 0.25) << "back from where it was";
  EXPECT_EQ(panel.at.y, -25);
  advance(100);
  EXPECT_EQ(panel.position(), 0.0);
  EXPECT_EQ(states.seen, (Seen{"1 0", "1 1", "0 1"}));
}

TEST_F(AutoHiderTest, ShowThenHideJumpsIntoViewAndSlidesAwayAfterTheDelayUnlessASlideCameFirst) {
  Panel panel(AutoHider::EdgeBottom, 10, &states);
  panel.slide(false, 0);
  states.seen.clear();
  panel.showThenHide(1000);
  EXPECT_EQ(panel.position(), 0.0);
  EXPECT_EQ(states.seen, (Seen{"1 1", "0 1"}));
  advance(999);
  EXPECT_EQ(states.seen.size(), 2u);
  advance(1);
  EXPECT_EQ(states.seen, (Seen{"1 1", "0 1", "1 0"})) << "the default speed";
  EXPECT_EQ(timers.nextTimeout(), 20) << "300 ms over a travel of 40";
  advance(300);
  EXPECT_EQ(panel.position(), 1.0);

  Panel other(AutoHider::EdgeBottom, 10, nullptr);
  other.showThenHide(1000);
  other.slide(true, 0);
  advance(5000);
  EXPECT_TRUE(other.isRevealed()) << "the slide cancelled the delayed hide";
  EXPECT_EQ(other.position(), 0.0);
}

TEST_F(AutoHiderTest, PlacesThePanelCentredAlongItsEdge) {
  struct Case {
    int edge;
    bool flipped;
    rfb::Size parent;
    bool hidden;
    rfb::Point at;
  };
  // A panel of 100 by 50 that keeps 10 pixels in view.
  const Case cases[] = {
      {AutoHider::EdgeLeft, false, {400, 300}, false, {0, 125}},
      {AutoHider::EdgeLeft, false, {400, 300}, true, {-90, 125}},
      {AutoHider::EdgeLeft, false, {400, 30}, false, {0, 0}}, // taller than its parent
      {AutoHider::EdgeRight, false, {400, 301}, false, {300, 125}},
      {AutoHider::EdgeRight, false, {400, 300}, true, {390, 125}},
      {AutoHider::EdgeTop, false, {400, 300}, false, {150, 0}},
      {AutoHider::EdgeTop, false, {400, 300}, true, {150, -40}},
      {AutoHider::EdgeTop, false, {90, 300}, true, {0, -40}}, // wider than its parent
      {AutoHider::EdgeBottom, false, {400, 300}, false, {150, 250}},
      {AutoHider::EdgeBottom, false, {400, 300}, true, {150, 290}},
      {AutoHider::EdgeTop, true, {400, 300}, true, {150, 290}},
      {AutoHider::EdgeBottom, true, {400, 300}, true, {150, -40}},
      {AutoHider::EdgeRight, false, {0, 0}, false, {-100, 0}}, // no parent
  };
  for (const Case& c : cases) {
    Panel panel(c.edge, 10, nullptr);
    panel.flipped = c.flipped;
    panel.parentSize = c.parent;
    panel.slide(!c.hidden, 0);
    EXPECT_EQ(panel.at, c.at) << "edge " << c.edge << (c.flipped ? " flipped" : "") << " parent "
                              << c.parent.width << "x" << c.parent.height;
  }
}

TEST_F(AutoHiderTest, PartOfTheTravelIsTruncatedToWholePixels) {
  Panel panel(AutoHider::EdgeRight, 0, nullptr);
  panel.size = {7, 50};
  panel.slide(false, 1000);
  advance(500); // half of 7 pixels
  EXPECT_EQ(panel.at.x, 400 - 7 + 3);
}

} // namespace
} // namespace ui
