// Popup menus on Qt: the QMenu pops up with the menu's items, aligned as
// asked, and an item the user triggers reaches the menu's callback.
#include "QtForm.h"

#include "mui/MuPopupMenu.h"
#include "mui/qt/MuPopupMenuQt.h"

#include <QTest>

namespace mui::test {
namespace {

TEST_F(QtForm, APopupMenuShowsItsItemsAndTellsTheChoice) {
  struct Actions : ui::Menu::ActionCallback {
    std::vector<int> chosen;
    void menuAction(ui::Menu*, int id) override { chosen.push_back(id); }
  } actions;
  dialog->setVisible(true);
  std::unique_ptr<MuPopupMenuQt> popup(
      static_cast<MuPopupMenuQt*>(MuPopupMenu::create("context", dialog->getWindow())));
  ui::Menu* items = popup->getMenu();
  items->setCallback(&actions);
  items->addItem(3, "&Copy");
  items->addSeparator();
  items->addItem(4, "Select &all");
  items->setChecked(4, true);
  popup->showAt({300, 200});
  processFor(20);
  QMenu* menu = popup->menu();
  ASSERT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->pos(), QPoint(300, 200));
  ASSERT_EQ(menu->actions().size(), 3);
  EXPECT_TRUE(menu->actions()[1]->isSeparator());
  EXPECT_TRUE(menu->actions()[2]->isChecked());
  QTest::keyClick(menu, Qt::Key_A);
  processFor(20);
  EXPECT_EQ(actions.chosen, std::vector<int>{4});
  EXPECT_FALSE(menu->isVisible());

  // Right-aligned under the dialog's client area: the menu's right edge at the area's.
  popup->showAtElement(dialog.get(), MuPopupMenu::AlignRight);
  EXPECT_EQ(menu->pos().x() + menu->sizeHint().width(),
            dialog->getScreenPosition().x + dialog->getSize().width);
  menu->hide();
}

} // namespace
} // namespace mui::test
