// Button bars on the headless binding: the buttons' order and where the bar
// stands, the program's own buttons, the default and cancel buttons it
// chooses, the labels in the language in force, and what it leaves behind.
#include "HeadlessForm.h"

#include "loc/LocaleParameter.h"
#include "loc/Localize.h"
#include "mui/Keys.h"
#include "mui/MuButton.h"
#include "mui/MuButtonBar.h"
#include "mui/MuFrame.h"
#include "mui/headless/MuDialogHeadless.h"
#include "mui/tests/EventLog.h"
#include "plat/ConfigParameter.h"

#include <gmock/gmock.h>

#include <string>

namespace mui::test {
namespace {

using Bar = MuButtonBar;

/// The bar's row, left to right: names, "<>" for the expander, "_" for the gap.
std::vector<std::string> row(const MuButtonBar& bar) {
  std::vector<std::string> names;
  MuLayout* layout = bar.layout();
  for (int i = 0; i < layout->childCount(); ++i) {
    MuElement* child = layout->getChild(i);
    int mode = 0;
    int size = 0;
    layout->childLayout(child, &mode, &size);
    if (child->name())
      names.emplace_back(child->name());
    else
      names.emplace_back(mode == MuLayout::Weighted ? "<>" : "_");
  }
  return names;
}

class ButtonBars : public HeadlessForm {
protected:
  void TearDown() override {
    loc::localeParameter.reset(true);
    HeadlessForm::TearDown();
  }
};

TEST_F(ButtonBars, StandardButtonsStandInTheirOrderRightOfTheExpander) {
  struct Row {
    int buttons;
    std::vector<std::string> row;
  } rows[] = {
      {Bar::Ok | Bar::Cancel, {"<>", "_", "ok", "cancel"}},
      {Bar::Yes | Bar::No, {"<>", "yes", "no"}},
      {Bar::Back | Bar::Next | Bar::Ok, {"<>", "back", "next", "_", "ok"}},
      {Bar::Apply | Bar::No | Bar::Cancel | Bar::Continue | Bar::Yes | Bar::Ok | Bar::Open |
           Bar::Save,
       {"<>", "_", "save", "open", "ok", "yes", "continue", "cancel", "no", "apply"}},
      {0, {"<>"}},
  };
  for (const Row& r : rows) {
    MuButtonBar bar(dialog.get(), r.buttons, false);
    EXPECT_EQ(row(bar), r.row) << r.buttons;
  }
  EXPECT_EQ(dialog->childCount(), 0) << "each bar took its frame along";
  EXPECT_DEATH(MuButtonBar(dialog.get(), Bar::Custom, false), "!\\(buttons & Custom\\)");
}

TEST_F(ButtonBars, InTheDialogTheBarIsAFooterAtTheBottomElseARow) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  MuButtonBar footer(dialog.get(), Bar::Ok, false);
  ASSERT_NE(footer.frame(), nullptr);
  EXPECT_EQ(dialog->find("buttons"), footer.frame());
  EXPECT_EQ(footer.frame()->frameType(), MuFrame::Footer);
  EXPECT_EQ(dialog->find("buttons.layout"), footer.layout());
  EXPECT_EQ(dialog->find("buttons.layout.ok"), footer.button(Bar::Ok));
  dialog->setVisible(true);
  EXPECT_EQ(footer.frame()->getPosition().y + footer.frame()->getSize().height,
            dialog->getSize().height);

  MuButtonBar inner(column, Bar::Yes, false);
  EXPECT_EQ(inner.frame(), nullptr);
  EXPECT_EQ(dialog->find("column.buttons.yes"), inner.button(Bar::Yes));
}

TEST_F(ButtonBars, TheProgramsButtonsStandLeftInReverseOrderOfAdding) {
  MuButtonBar bar(dialog.get(), Bar::Ok, false);
  MuButton* first = bar.addButton(Bar::Custom, "first", "First");
  bar.addButton(Bar::Custom, "second", "Second");
  EXPECT_EQ(bar.addButton(Bar::Custom | Bar::Ok, "mixed", "Mixed"), nullptr);
  EXPECT_EQ(bar.addButton(0), nullptr);
  EXPECT_THAT(row(bar), testing::ElementsAre("second", "first", "<>", "ok"));
  EXPECT_EQ(bar.button(Bar::Custom, "first"), first);
  EXPECT_EQ(bar.button(Bar::Custom), nullptr);
  EXPECT_EQ(bar.buttonId(first), Bar::Custom);
  EXPECT_EQ(bar.buttonId(bar.button(Bar::Ok)), Bar::Ok);
  EXPECT_EQ(bar.buttonId(nullptr), 0);
  EXPECT_EQ(bar.buttonId(dialog.get()), 0);

  bar.resetExpander();
  bar.addButton(Bar::Custom, "third", "Third");
  EXPECT_THAT(row(bar), testing::ElementsAre("second", "first", "ok", "third", "<>"));
  bar.setEnabled(false);
  EXPECT_FALSE(first->isEnabled());
  EXPECT_FALSE(bar.button(Bar::Ok)->isEnabled());
  bar.setButtons(Bar::No, false);
  EXPECT_THAT(row(bar), testing::ElementsAre("<>", "no"));
}

TEST_F(ButtonBars, TheBarChoosesTheDefaultAndCancelButtonsThatReturnAndEscapePress) {
  struct Row {
    int buttons;
    const char* defaultName;
    const char* cancelName;
  } rows[] = {
      {Bar::Ok | Bar::Cancel, "ok", "cancel"},
      {Bar::Yes | Bar::No, "yes", "no"},
      {Bar::Save | Bar::Open | Bar::Next, "next", nullptr},
      {Bar::Open | Bar::Continue, "continue", nullptr},
      {Bar::Apply, nullptr, nullptr},
  };
  for (const Row& r : rows) {
    MuButtonBar bar(dialog.get(), r.buttons, true);
    MuElement* byDefault = dialog->button(MuDialog::DefaultButton);
    MuElement* byCancel = dialog->button(MuDialog::CancelButton);
    EXPECT_STREQ(byDefault ? byDefault->name() : nullptr, r.defaultName) << r.buttons;
    EXPECT_STREQ(byCancel ? byCancel->name() : nullptr, r.cancelName) << r.buttons;
  }

  TextLeaf* own = TextLeaf::create(dialog.get(), "own", "Own");
  dialog->setButton(MuDialog::DefaultButton, own);
  {
    MuButtonBar bar(dialog.get(), Bar::Apply | Bar::Cancel, true);
    EXPECT_EQ(dialog->button(MuDialog::DefaultButton), own) << "no candidate: kept";
    EventLog log;
    dialog->addObserver(&log);
    auto* form = static_cast<MuDialogHeadless*>(dialog.get());
    form->pressKey(KeyEscape);
    form->pressKey(KeyReturn);
    EXPECT_THAT(log.take(), testing::ElementsAre("cancel clicked", "own clicked"));
    dialog->removeObserver(&log);
  }
  EXPECT_EQ(dialog->button(MuDialog::CancelButton), nullptr) << "the bar's own went with it";
  EXPECT_EQ(dialog->button(MuDialog::DefaultButton), own);
}

TEST_F(ButtonBars, LabelsComeFromTheCatalogInTheLanguageInForce) {
  loc::Localize::instance().init({});
  loc::localeParameter.setFromString("de", plat::priorityPreference);
  MuButtonBar bar(dialog.get(), Bar::Ok | Bar::Cancel | Bar::Back, false);
  EXPECT_STREQ(bar.button(Bar::Cancel)->label(), "Abbrechen");
  EXPECT_STREQ(bar.button(Bar::Back)->label(), "< &Zurück");
  loc::localeParameter.setFromString("en", plat::priorityPreference);
  bar.setButtons(Bar::Cancel, false);
  EXPECT_STREQ(bar.button(Bar::Cancel)->label(), "Cancel");
}

} // namespace
} // namespace mui::test
