// Pagers on Qt: a click on a tab and the tab bar's keys select the page and
// raise the event; the program's own changes move the tab without one; the
// current page stands inside the tab pane.
#include "QtForm.h"

#include "mui/MuPager.h"
#include "mui/qt/MuPagerQt.h"
#include "mui/tests/EventLog.h"

#include <gmock/gmock.h>

#include <QTest>

namespace mui::test {
namespace {

TEST_F(QtForm, APagersTabsSelectItsPages) {
  auto* pager = static_cast<MuPagerQt*>(MuPager::create(dialog.get(), "pager", MuPager::WithTabs));
  for (const char* name : {"general", "users", "advanced"})
    LabelLeafQt::create(pager, name, name);
  EventLog log;
  pager->addObserver(&log);
  dialog->setVisible(true);
  processFor(20);
  QTabBar* tabs = pager->tabBar();
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->tabText(1), "users");

  QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(1).center());
  EXPECT_EQ(pager->current(), 1);
  EXPECT_FALSE(pager->getChild(0)->isVisible());
  EXPECT_TRUE(pager->getChild(1)->isVisible());
  tabs->setFocus();
  QTest::keyClick(tabs, Qt::Key_Right);
  EXPECT_EQ(pager->current(), 2);
  EXPECT_THAT(log.take(), testing::ElementsAre("pager changed", "pager changed"));

  pager->setCurrent(0);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(log.events.empty());

  // The page stands below the tabs, inside the pane's frame and margin.
  QWidget* page = MuCommonQt::of(pager->getChild(0))->widget();
  const QRect pagerRect = MuCommonQt::of(pager)->widget()->rect();
  EXPECT_GE(page->y(), tabs->height() + Mui::metric(MetricFrameMargin) - 2);
  EXPECT_TRUE(pagerRect
                  .adjusted(Mui::metric(MetricFrameMargin), 0, -Mui::metric(MetricFrameMargin),
                            -Mui::metric(MetricFrameMargin))
                  .contains(page->geometry()));
  dialog->setVisible(false);
}

} // namespace
} // namespace mui::test
