// Popup menus on the headless binding: where they pop up, the choice of an
// item reaching the menu's callback, and finding a menu by its name.
#include "HeadlessForm.h"

#include "mui/MuPopupMenu.h"
#include "mui/headless/MuPopupMenuHeadless.h"

#include <gmock/gmock.h>

namespace mui::test {
namespace {

struct Actions : ui::Menu::ActionCallback {
  std::vector<int> chosen;
  void menuAction(ui::Menu*, int id) override { chosen.push_back(id); }
};

std::unique_ptr<MuPopupMenuHeadless> makeMenu(const char* name) {
  return std::unique_ptr<MuPopupMenuHeadless>(
      static_cast<MuPopupMenuHeadless*>(MuPopupMenu::create(name, nullptr)));
}

TEST_F(HeadlessForm, APopupMenuStandsUnderItsElementAtTheAlignedEdge) {
  dialog->setPosition({100, 50});
  TextLeaf* anchor = TextLeaf::create(dialog.get(), "anchor", "Anchor");
  anchor->setPosition({20, 10});
  anchor->setSize({60, 24});
  auto menu = makeMenu("context");
  struct Row {
    int align;
    Point at;
  } rows[] = {{MuPopupMenu::AlignLeft, {120, 84}},
              {MuPopupMenu::AlignCentre, {150, 84}},
              {MuPopupMenu::AlignRight, {180, 84}}};
  for (const Row& row : rows) {
    menu->showAtElement(anchor, row.align);
    EXPECT_EQ(menu->shownAt(), row.at) << row.align;
    EXPECT_EQ(menu->shownAlign(), row.align);
  }
  menu->setCursor({7, 9});
  menu->showAtCursor();
  EXPECT_EQ(menu->shownAt(), Point(7, 9));
  EXPECT_EQ(menu->shownAlign(), MuPopupMenu::AlignLeft);
}

TEST_F(HeadlessForm, AChosenItemReachesTheCallbackUnlessDisabled) {
  auto menu = makeMenu("edit");
  Actions actions;
  ui::Menu* items = menu->getMenu();
  items->setCallback(&actions);
  items->addItem(1, "&Copy");
  items->addSeparator();
  items->addItem(2, "&Paste");
  items->setEnabled(2, false);
  EXPECT_FALSE(menu->choose(1)) << "not shown";
  menu->showAt({0, 0});
  EXPECT_TRUE(menu->choose(1));
  EXPECT_FALSE(menu->isShown());
  menu->showAt({0, 0});
  EXPECT_FALSE(menu->choose(2));
  menu->showAt({0, 0});
  EXPECT_FALSE(menu->choose(0)) << "a separator";
  EXPECT_THAT(actions.chosen, testing::ElementsAre(1));
}

TEST_F(HeadlessForm, AMenuIsFoundByNameWhileItLives) {
  auto first = makeMenu("m");
  EXPECT_EQ(MuPopupMenu::findMenu("m"), first->getMenu());
  {
    auto second = makeMenu("m");
    EXPECT_EQ(MuPopupMenu::findMenu("m"), second->getMenu());
  }
  EXPECT_EQ(MuPopupMenu::findMenu("m"), first->getMenu());
  first.reset();
  EXPECT_EQ(MuPopupMenu::findMenu("m"), nullptr);
  EXPECT_EQ(MuPopupMenu::findMenu(nullptr), nullptr);
}

} // namespace
} // namespace mui::test
