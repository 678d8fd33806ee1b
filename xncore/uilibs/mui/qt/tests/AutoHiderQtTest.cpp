// The auto-hiding panel on Qt: a frameless child of its parent's window that
// comes into view when the pointer moves over its strip and goes away when
// the pointer moves on over the parent.
#include "../../../../base/plat/tests/ManualClock.h"
#include "QtForm.h"

#include "mui/MuAutoHider.h"
#include "mui/qt/MuAutoHiderQt.h"
#include "plat/TimerManager.h"

#include <QTest>
#include <QWindow>

namespace mui::test {
namespace {

TEST_F(QtForm, AnAutoHidingPanelComesIntoViewUnderThePointerAndGoesOverTheParent) {
  EXPECT_EQ(muAutoHiderFactory, &MuAutoHiderQt::make);
  plat::TimerManager timers{true, &plattest::fakeClock};
  dialog->setVisible(true);
  const Size size{100, 60};
  std::unique_ptr<MuAutoHiderQt> hider(static_cast<MuAutoHiderQt*>(
      MuAutoHider::create("panel", &size, ui::AutoHider::EdgeLeft, 10, nullptr)));
  hider->setParentWindow(dialog->getWindow());
  QWidget* panel = hider->panel();
  EXPECT_EQ(panel->parentWidget(), window());
  EXPECT_FALSE(panel->isWindow());
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(panel->geometry(), QRect(0, 120, 100, 60));

  hider->hider()->slide(false, 0);
  EXPECT_EQ(panel->pos(), QPoint(-90, 120));
  QTest::mouseMove(window()->windowHandle(), QPoint(5, 150));
  QApplication::processEvents();
  EXPECT_TRUE(hider->hider()->isRevealed());
  plattest::advanceMs(300);
  timers.process();
  EXPECT_EQ(panel->pos(), QPoint(0, 120));

  QTest::mouseMove(window()->windowHandle(), QPoint(300, 150));
  QApplication::processEvents();
  EXPECT_FALSE(hider->hider()->isRevealed());
  plattest::advanceMs(300);
  timers.process();
  EXPECT_EQ(panel->pos(), QPoint(-90, 120));
}

} // namespace
} // namespace mui::test
