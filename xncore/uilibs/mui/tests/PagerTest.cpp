// Pagers on the headless binding: which page shows where, the current page
// as pages come and go, tabs and titles, and the events of the user's pick.
#include "HeadlessForm.h"

#include "mui/MuPager.h"
#include "mui/headless/MuPagerHeadless.h"
#include "mui/tests/EventLog.h"

#include <gmock/gmock.h>

namespace mui::test {
namespace {

class Pagers : public HeadlessForm {
protected:
  MuPagerHeadless* makePager(int style) {
    auto* pager = static_cast<MuPagerHeadless*>(MuPager::create(dialog.get(), "pager", style));
    for (const char* name : {"general", "users", "advanced"})
      TextLeaf::create(pager, name, name);
    pager->setSize({300, 200});
    pager->addObserver(&log);
    return pager;
  }
  static std::vector<bool> shown(MuPager* pager) {
    std::vector<bool> result;
    for (int i = 0; i < pager->childCount(); ++i)
      result.push_back(pager->getChild(i)->isVisible());
    return result;
  }

  EventLog log;
};

TEST_F(Pagers, OnlyTheCurrentPageShowsInsideTheTabPane) {
  MuPagerHeadless* pager = makePager(MuPager::WithTabs);
  const int margin = Mui::metric(MetricFrameMargin);
  EXPECT_THAT(shown(pager), testing::ElementsAre(true, false, false));
  MuElement* first = pager->getChild(0);
  EXPECT_EQ(Rect::at(first->getPosition(), first->getSize()),
            Rect(margin, pager->tabHeight() + margin, 300 - margin, 200 - margin));
  EXPECT_EQ(pager->minWidth(0), 0);
  EXPECT_EQ(pager->minHeight(300), 0);

  MuPagerHeadless* plain = makePager(MuPager::NoTabs);
  MuElement* page = plain->getChild(0);
  EXPECT_EQ(Rect::at(page->getPosition(), page->getSize()), Rect(0, 0, 300, 200));
  EXPECT_TRUE(plain->tabs().empty());
}

TEST_F(Pagers, PickingATabSelectsItsPageWhileTheProgramRaisesNothing) {
  MuPagerHeadless* pager = makePager(MuPager::WithTabs);
  pager->setCurrent(2);
  pager->setCurrent(7);
  EXPECT_EQ(pager->current(), 2);
  EXPECT_EQ(pager->currentTab(), 2);
  EXPECT_TRUE(log.events.empty());
  pager->pickTab(1);
  EXPECT_THAT(shown(pager), testing::ElementsAre(false, true, false));
  EXPECT_THAT(log.take(), testing::ElementsAre("pager changed"));
  pager->setEnabled(false);
  pager->pickTab(0);
  EXPECT_EQ(pager->current(), 1);
  EXPECT_TRUE(log.events.empty());
  EXPECT_DEATH(pager->select(3), "isValid\\(i\\)");
}

TEST_F(Pagers, RemovingAPageAtOrBeforeTheCurrentOneStepsBack) {
  struct Row {
    int current;
    int removed;
    int after;
    const char* shows;
  } rows[] = {
      {0, 0, 0, "users"},
      {2, 2, 1, "users"},
      {2, 0, 1, "advanced"},
      {1, 2, 1, "users"},
  };
  for (const Row& row : rows) {
    MuPagerHeadless* pager = makePager(MuPager::WithTabs);
    pager->setCurrent(row.current);
    pager->removeChild(pager->getChild(row.removed));
    EXPECT_EQ(pager->current(), row.after) << row.current << " " << row.removed;
    EXPECT_EQ(pager->currentTab(), row.after);
    EXPECT_TRUE(pager->getChild(row.after)->isVisible());
    EXPECT_STREQ(pager->getChild(row.after)->name(), row.shows);
    EXPECT_EQ(pager->tabs().size(), 2u);
    pager->parent()->removeChild(pager);
  }
  MuPagerHeadless* pager = makePager(MuPager::WithTabs);
  pager->setCurrent(2);
  pager->removeAll();
  EXPECT_EQ(pager->current(), 0);
  EXPECT_TRUE(pager->tabs().empty());
  pager->layout(); // nothing to show
  EXPECT_DEATH(pager->removeChild(dialog.get()), "i != pages.end\\(\\)");
}

TEST_F(Pagers, TabsShowTitlesOrNamesAndSelectingByNameAlwaysTells) {
  MuPagerHeadless* pager = makePager(MuPager::WithTabs);
  pager->setTitle(pager->getChild(1), "Users && groups");
  pager->setTitle(dialog.get(), "stranger");
  EXPECT_THAT(pager->tabs(), testing::ElementsAre("general", "Users && groups", "advanced"));
  EXPECT_STREQ(pager->describeItems().get(), "0:general\n1:Users && groups\n2:advanced\n");
  EXPECT_TRUE(pager->perform("select", "2"));
  EXPECT_TRUE(pager->perform("select", "9"));
  EXPECT_FALSE(pager->perform("click", "1"));
  EXPECT_EQ(pager->current(), 2);
  EXPECT_EQ(pager->currentTab(), 2);
  EXPECT_THAT(log.take(), testing::ElementsAre("pager changed", "pager changed"));
  EXPECT_STREQ(pager->describe().get(), "shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 300,200\n"
                                        "element Pager\npage 2\n");
}

} // namespace
} // namespace mui::test
