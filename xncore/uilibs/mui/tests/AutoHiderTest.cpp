// The auto-hiding panel of the headless binding on a parent dialog: its
// dialog, its place on the parent's edge, the rule of the pointer, the
// delayed hide and the keyboard focus leaving a panel that slides away.
#include "../../../base/plat/tests/ManualClock.h"
#include "HeadlessForm.h"

#include "mui/MuAutoHider.h"
#include "mui/MuButton.h"
#include "mui/headless/MuAutoHiderHeadless.h"
#include "os/Window.h"
#include "plat/TimerManager.h"

#include <string>
#include <vector>

namespace mui::test {
namespace {

// Each report as "sliding revealed".
struct States : ui::AutoHider::Callback {
  void stateChanged(bool sliding, bool revealed, ui::AutoHider*) override {
    seen.push_back(std::to_string(sliding) + " " + std::to_string(revealed));
  }
  std::vector<std::string> seen;
};

using Seen = std::vector<std::string>;

// A panel of 100 by 60 at the left edge of the form's dialog, keeping 10 pixels in view.
class AutoHiderTest : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    const Size size{100, 60};
    panel.reset(static_cast<MuAutoHiderHeadless*>(
        MuAutoHider::create("panel", &size, ui::AutoHider::EdgeLeft, 10, &states)));
  }
  void TearDown() override {
    panel.reset();
    HeadlessForm::TearDown();
  }
  void advance(int ms) {
    plattest::advanceMs(ms);
    timers.process();
  }
  Point panelAt() { return panel->getWindow()->getRect().tl; }

  plat::TimerManager timers{false, &plattest::fakeClock};
  States states;
  std::unique_ptr<MuAutoHiderHeadless> panel;
};

TEST_F(AutoHiderTest, CreateMakesAHiddenBorderedDialogOwnedByTheCaller) {
  MuDialog* panelDialog = panel->getDialog();
  EXPECT_EQ(panelDialog->dialogStyle(), 2560);
  EXPECT_STREQ(panelDialog->name(), "panel");
  EXPECT_EQ(panelDialog->getSize(), Size(100, 60));
  EXPECT_FALSE(panelDialog->isVisible()) << "shown only on a parent";
  EXPECT_EQ(dialog->childCount(), 0) << "added nowhere";
  EXPECT_EQ(panel->getWindow(), panelDialog->getWindow());
  EXPECT_EQ(panel->hider()->edge(), ui::AutoHider::EdgeLeft);
  EXPECT_DEATH(
      {
        muAutoHiderFactory = nullptr;
        MuAutoHider::create("other", nullptr, 0, 0, nullptr);
      },
      "muAutoHiderFactory");
}

TEST_F(AutoHiderTest, OnAParentItShowsAgainstTheEdgeAndThePointerSlidesIt) {
  panel->setParentWindow(dialog->getWindow());
  EXPECT_TRUE(panel->getDialog()->isVisible());
  EXPECT_EQ(panelAt(), Point(0, 120));
  panel->hider()->slide(false, 0);
  EXPECT_EQ(panelAt(), Point(-90, 120));

  panel->pointerMovedOver(AutoHiderWindow::OverParent);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0"})) << "already hidden";
  panel->pointerMovedOver(AutoHiderWindow::OverPanel);
  panel->pointerMovedOver(AutoHiderWindow::OverPanel);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0", "1 1"})) << "one slide, at the default speed";
  advance(300);
  EXPECT_EQ(panelAt(), Point(0, 120));
  panel->pointerMovedOver(AutoHiderWindow::OverParent);
  EXPECT_EQ(states.seen, (Seen{"1 0", "0 0", "1 1", "0 1", "1 0"}));
  EXPECT_EQ(panel->parentFocusCount(), 0) << "nothing of the panel had the focus";
}

TEST_F(AutoHiderTest, WithoutAParentThePanelStandsAtTheOriginAndIgnoresThePointer) {
  panel->hider()->applyPosition();
  EXPECT_EQ(panelAt(), Point(0, 0)) << "a parent of (0, 0)";
  panel->hider()->slide(false, 0);
  states.seen.clear();
  panel->pointerMovedOver(AutoHiderWindow::OverPanel);
  EXPECT_TRUE(states.seen.empty());

  panel->setParentWindow(dialog->getWindow());
  panel->setParentWindow(nullptr);
  EXPECT_EQ(panel->hiderWindow()->parent(), nullptr);
  panel->pointerMovedOver(AutoHiderWindow::OverPanel);
  EXPECT_TRUE(states.seen.empty()) << "taken off its parent";
}

TEST_F(AutoHiderTest, ThePointerOverAShownPanelLeavesTheDelayedHideToRun) {
  panel->setParentWindow(dialog->getWindow());
  panel->hider()->slide(false, 0);
  states.seen.clear();
  panel->hider()->showThenHide(1000);
  panel->pointerMovedOver(AutoHiderWindow::OverPanel);
  EXPECT_EQ(states.seen, (Seen{"1 1", "0 1"}));
  advance(1000);
  EXPECT_EQ(states.seen, (Seen{"1 1", "0 1", "1 0"}));
}

TEST_F(AutoHiderTest, TheFocusLeavesForTheParentWhenAPanelHoldingItSlidesAway) {
  MuButton* button = MuButton::create(panel->getDialog(), "ok", "OK");
  panel->getDialog()->setVisible(true);
  button->setFocus();
  ASSERT_TRUE(button->hasFocus());
  panel->hider()->slide(false, 0);
  EXPECT_EQ(panel->parentFocusCount(), 0) << "without a parent";
  panel->setParentWindow(dialog->getWindow());
  panel->hider()->slide(true, 0);
  EXPECT_EQ(panel->parentFocusCount(), 0) << "a slide into view keeps the focus";
  panel->hider()->slide(false, 0);
  EXPECT_EQ(panel->parentFocusCount(), 1);
}

} // namespace
} // namespace mui::test
