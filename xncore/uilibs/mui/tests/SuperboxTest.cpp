// Superboxes on the headless binding: the popup's name and place, the owner
// opening it and filtering its list as the user types, the keys and presses
// that close it, and the driving actions.
#include "HeadlessForm.h"

#include "mui/Keys.h"
#include "mui/MuList.h"
#include "mui/MuSuperbox.h"
#include "mui/headless/MuDialogHeadless.h"
#include "mui/headless/MuSuperboxHeadless.h"
#include "mui/tests/EventLog.h"
#include "plat/DString.h"

#include <gmock/gmock.h>

#include <cstring>

namespace mui::test {
namespace {

/// An owner as an application writes one: the drop-down key opens the
/// popup, and typing shows the names that begin with the text.
struct Finder : MuObserver, MuSuperbox::Callback {
  MuSuperbox* box = nullptr;
  MuList* list = nullptr;
  std::vector<int> keys;

  void handleEvent(MuElement* source, int event) override {
    if (source != box)
      return;
    if (event == EventClicked)
      box->showPopup(true);
    if (event != EventChanged)
      return;
    const plat::String typed = box->getText();
    list->removeAll();
    for (const char* name : {"alice", "bob", "bert", "carol"}) {
      if (std::strncmp(name, typed.get(), std::strlen(typed.get())) == 0)
        list->addRow(-1, name);
    }
    box->showPopup(list->rowCount() > 0);
  }
  // Up and Down move in the popup's list.
  bool keyPressed(MuSuperbox*, int keysym) override {
    keys.push_back(keysym);
    if (keysym != KeyDown || !box->isPopupShown())
      return false;
    list->setSelection(list->getSelection() + 1);
    return true;
  }
};

class Superboxes : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    root->setDesktopSize({1000, 800});
    MuLayout* row = MuLayout::create(dialog.get(), "row", MuLayout::Vertical);
    box = static_cast<MuSuperboxHeadless*>(MuSuperbox::create(row, "find", "&Find:", &finder, 80));
    finder.box = box;
    finder.list = MuList::create(box->getPopup(), "names", 0, nullptr);
    finder.list->addColumn(0, MuList::TextColumn, "", 0);
    dialog->addObserver(&finder);
    dialog->addObserver(&log);
    ok = TextLeaf::create(row, "ok", "OK");
    cancel = TextLeaf::create(row, "cancel", "Cancel");
    dialog->setButton(MuDialog::DefaultButton, ok);
    dialog->setButton(MuDialog::CancelButton, cancel);
    dialog->setVisible(true);
    box->setFocus();
    log.take();
  }
  std::vector<std::string> shownNames() {
    std::vector<std::string> names;
    for (int i = 0; i < finder.list->rowCount(); ++i)
      names.emplace_back(finder.list->cell(i, 0));
    return names;
  }

  Finder finder;
  EventLog log;
  MuSuperboxHeadless* box = nullptr;
  TextLeaf* ok = nullptr;
  TextLeaf* cancel = nullptr;
};

TEST_F(Superboxes, ThePopupIsNamedAfterItsBoxAndOpensUnderTheTextBox) {
  MuDialog* popup = box->getPopup();
  EXPECT_STREQ(popup->name(), "form_row_find_popup");
  EXPECT_EQ(popup->dialogStyle(), MuDialog::Popup);
  EXPECT_EQ(popup->margin(), 0);
  EXPECT_EQ(popup->parentWindow(), dialog->getWindow());
  box->showPopup(true);
  const Rect edit = box->getEditRect();
  const Point origin = dialog->getScreenPosition();
  EXPECT_GT(edit.tl.x, box->getPosition().x) << "the caption stands left of the box";
  EXPECT_EQ(popup->getPosition(), Point(origin.x + edit.tl.x, origin.y + edit.br.y));
  EXPECT_EQ(popup->getSize(), Size(edit.width(), 80));
  EXPECT_TRUE(popup->isPositioned());
  box->showPopup(false);
  box->showPopup(false);
  EXPECT_FALSE(popup->isVisible());
  EXPECT_STREQ(box->describe().get(),
               plat::strFormat("shown 1\nenabled 1\nlocked 0\npos %d,%d\nsize %d,%d\n"
                               "label &Find:\nelement Superbox\nvalue \npopup-dialogid "
                               "form_row_find_popup\n",
                               box->getPosition().x, box->getPosition().y, box->getSize().width,
                               box->getSize().height)
                   .get());
}

TEST_F(Superboxes, TheOwnerOpensThePopupAndFiltersItAsTheUserTypes) {
  box->pressDropDown();
  EXPECT_TRUE(box->isPopupShown());
  EXPECT_THAT(log.take(), testing::ElementsAre("find clicked"));
  box->type("b");
  EXPECT_THAT(shownNames(), testing::ElementsAre("bob", "bert"));
  box->type("e");
  EXPECT_THAT(shownNames(), testing::ElementsAre("bert"));
  box->pressKey(KeyDown);
  EXPECT_EQ(finder.list->getSelection(), 0);
  box->type("x");
  EXPECT_FALSE(box->isPopupShown()) << "nothing to show";
  EXPECT_THAT(log.take(), testing::ElementsAre("find changed", "find changed", "find changed"));

  box->pressDropDown();
  box->pressDropDown(); // the open popup closes, with no event
  EXPECT_FALSE(box->isPopupShown());
  EXPECT_THAT(log.take(), testing::ElementsAre("find clicked"));
}

TEST_F(Superboxes, KeysAndPressesElsewhereCloseThePopup) {
  struct Row {
    const char* action;
    bool closes;
    std::vector<std::string> events;
  } rows[] = {
      {"escape", true, {}},             // the first Escape only closes
      {"return", true, {"ok clicked"}}, // and goes on to the dialog
      {"tab", true, {}},
      {"press elsewhere", true, {}},
      {"press in popup", false, {}},
      {"press box", true, {}},
      {"lose focus", true, {}},
  };
  for (const Row& row : rows) {
    box->setFocus();
    box->pressDropDown();
    log.take();
    const std::string action = row.action;
    if (action == "escape")
      box->pressKey(KeyEscape);
    else if (action == "return")
      box->pressKey(KeyReturn);
    else if (action == "tab")
      box->pressKey(KeyTab);
    else if (action == "press elsewhere")
      box->pressElsewhere();
    else if (action == "press in popup")
      box->pressInPopup();
    else if (action == "press box")
      EXPECT_FALSE(box->pressBox()) << "the press that closes is swallowed";
    else
      box->loseFocus();
    EXPECT_EQ(box->isPopupShown(), !row.closes) << action;
    EXPECT_EQ(log.take(), row.events) << action;
    box->showPopup(false);
  }
  box->pressKey(KeyEscape); // with the popup closed, Escape is the dialog's
  EXPECT_THAT(log.take(), testing::ElementsAre("cancel clicked"));
  EXPECT_TRUE(box->pressBox());
  EXPECT_THAT(finder.keys, testing::Contains(KeyTab));
}

TEST_F(Superboxes, TheProgramsTextRaisesNothingWhileDrivingTells) {
  box->setText("carol");
  EXPECT_TRUE(box->isAllSelected());
  EXPECT_STREQ(box->getText().get(), "carol");
  EXPECT_TRUE(log.take().empty());
  EXPECT_TRUE(box->perform("settext", "al"));
  EXPECT_THAT(shownNames(), testing::ElementsAre("alice"));
  EXPECT_TRUE(box->perform("pressenter", nullptr));
  EXPECT_FALSE(box->isPopupShown());
  EXPECT_FALSE(box->perform("settext", nullptr));
  EXPECT_FALSE(box->perform("click", "1"));
  box->setEnabled(false);
  EXPECT_FALSE(box->perform("settext", "b"));
  box->type("b");
  EXPECT_STREQ(box->getText().get(), "al");
  EXPECT_THAT(log.take(), testing::ElementsAre("find changed"));
  EXPECT_EQ(box->childAt(0), box);
  EXPECT_EQ(box->childAt(1), nullptr);
  // Caption, gap and 4 pixels wide; as high as a control.
  EXPECT_EQ(box->minWidth(0), 7 * 5 + Mui::metric(MetricLabelGap) + 4);
  EXPECT_EQ(box->minHeight(300), Mui::metric(MetricControlHeight));
}

} // namespace
} // namespace mui::test
