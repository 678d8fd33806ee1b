// Drop-down lists on the headless binding: items by id in the order of
// adding, the events of the user's picks and of perform() (none while items
// go), editable text, and the measure beside a caption.
#include "EventLog.h"
#include "HeadlessForm.h"

#include "mui/MuChoice.h"
#include "mui/headless/MuChoiceHeadless.h"

#include <gmock/gmock.h>

#include <climits>

namespace mui::test {
namespace {

class Choices : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
    choice = static_cast<MuChoiceHeadless*>(MuChoice::create(column, "preset", "&Preset:"));
    choice->addItem(10, "Allow");
    choice->addItem(20, "Deny");
    choice->addItem(5, "Full control");
    dialog->setVisible(true);
    column->addObserver(&log);
  }

  MuLayout* column = nullptr;
  MuChoiceHeadless* choice = nullptr;
  EventLog log;
};

TEST_F(Choices, ItemsAreKeptByIdInTheOrderOfAdding) {
  EXPECT_EQ(choice->getValue(), -1);
  EXPECT_EQ(choice->itemCount(), 3);
  EXPECT_STREQ(choice->describeItems().get(), "10:Allow\n20:Deny\n5:Full control\n");
  choice->setValue(20);
  EXPECT_EQ(choice->getValue(), 20);
  EXPECT_EQ(choice->getText(), plat::String("Deny"));
  EXPECT_THAT(choice->describe().get(),
              testing::EndsWith("element Choice\nvalue 20\nvaluestr Deny\n"));
  choice->setValue(99);
  EXPECT_EQ(choice->getValue(), -1);
  choice->setText("Full control");
  EXPECT_EQ(choice->getValue(), 5);
  choice->setText("Nothing like it");
  EXPECT_EQ(choice->getValue(), 5);
  EXPECT_FALSE(choice->type("typed"));
  choice->removeItem(99);
  choice->removeItem(10);
  EXPECT_STREQ(choice->describeItems().get(), "20:Deny\n5:Full control\n");
  EXPECT_EQ(choice->getValue(), 5);
  EXPECT_STREQ(choice->typeName(), "choice");
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

TEST_F(Choices, OnlyADifferentPickOfTheUserOrPerformRaisesEvents) {
  EXPECT_TRUE(choice->pick(20));
  EXPECT_TRUE(choice->pick(20));
  EXPECT_FALSE(choice->pick(99));
  EXPECT_THAT(log.take(), testing::ElementsAre("preset changed"));
  // Removing the selected item clears the selection, which is no pick.
  choice->removeItem(20);
  EXPECT_EQ(choice->getValue(), -1);
  choice->setValue(5);
  choice->removeAll();
  EXPECT_EQ(choice->itemCount(), 0);
  EXPECT_THAT(log.take(), testing::IsEmpty());

  choice->addItem(1, "One");
  EXPECT_TRUE(choice->perform("select", "1"));
  EXPECT_EQ(choice->getValue(), 1);
  EXPECT_TRUE(choice->perform("settext", "One"));
  EXPECT_TRUE(choice->perform("click", nullptr));
  EXPECT_FALSE(choice->perform("select", nullptr));
  EXPECT_FALSE(choice->perform("open", "1"));
  EXPECT_THAT(log.take(),
              testing::ElementsAre("preset changed", "preset changed", "preset clicked"));

  column->setVisible(false);
  EXPECT_FALSE(choice->perform("click", nullptr));
  EXPECT_FALSE(choice->pick(1));
  EXPECT_TRUE(choice->perform("select", "-1"));
  column->setVisible(true);
  choice->setLocked(true);
  EXPECT_FALSE(choice->perform("select", "1"));
  EXPECT_FALSE(choice->pick(1));
  EXPECT_THAT(log.take(), testing::ElementsAre("preset changed"));
}

TEST_F(Choices, AnEditableChoiceTakesTypedText) {
  auto* editable = static_cast<MuChoiceHeadless*>(
      MuChoice::create(column, "name", nullptr, MuChoice::Editable | MuChoice::AutoComplete));
  editable->addItem(1, "Administrators");
  EXPECT_TRUE(editable->type("Admin"));
  EXPECT_EQ(editable->getText(), plat::String("Admin"));
  EXPECT_EQ(editable->getValue(), -1);
  EXPECT_TRUE(editable->pick(1));
  EXPECT_EQ(editable->getText(), plat::String("Administrators"));
  editable->setText("Guests");
  EXPECT_EQ(editable->getText(), plat::String("Guests"));
  EXPECT_THAT(log.take(), testing::ElementsAre("name changed"));
}

// At "ppmm" 4 the drop-down takes 54 units (27 pixels) beside the widest
// item, 12 units (6 pixels) around a line of 16, and the caption its text
// and the 4-pixel gap.
TEST_F(Choices, MeasureHoldsTheWidestItemAndTheDropDown) {
  EXPECT_EQ(choice->minControlWidth(), 12 * 7 + 27);
  EXPECT_EQ(choice->minControlHeight(), 16 + 6);
  EXPECT_EQ(choice->minWidth(0), 12 * 7 + 27 + 7 * 7 + 4);
  EXPECT_EQ(choice->minHeight(INT_MAX), 22);
  EXPECT_EQ(choice->labelWidth(), 49);
  choice->removeItem(5);
  EXPECT_EQ(choice->minControlWidth(), 5 * 7 + 27);
}

} // namespace
} // namespace mui::test
