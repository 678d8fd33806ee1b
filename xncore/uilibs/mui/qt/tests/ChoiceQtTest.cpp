// Drop-down lists on Qt: the user's keys pick items and raise EventChanged as
// on the headless binding; the program's changes and removals raise nothing;
// typed text never becomes an item; a disabled choice takes no input; the
// caption's mnemonic focuses the list.
#include "ControlsQtForm.h"

#include "mui/MuChoice.h"
#include "mui/qt/MuChoiceQt.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QTest>

namespace mui::test {
namespace {

class ChoicesQt : public ControlsQtForm {
protected:
  void SetUp() override {
    ControlsQtForm::SetUp();
    choice = static_cast<MuChoiceQt*>(MuChoice::create(column, "preset", "P&reset"));
    choice->addItem(10, "Allow");
    choice->addItem(20, "Deny");
    choice->addItem(5, "Full control");
    show();
  }

  MuChoiceQt* choice = nullptr;
};

TEST_F(ChoicesQt, KeysPickItemsAndOnlyThoseRaiseEvents) {
  EXPECT_EQ(choice->getValue(), -1); // nothing is selected at first
  QTest::keyClick(window(), Qt::Key_R, Qt::AltModifier);
  ASSERT_TRUE(choice->comboBox()->hasFocus());
  QTest::keyClick(choice->comboBox(), Qt::Key_Down);
  QTest::keyClick(choice->comboBox(), Qt::Key_Down);
  EXPECT_EQ(choice->getValue(), 20);
  EXPECT_THAT(log.take(), testing::ElementsAre("preset changed", "preset changed"));
  choice->setValue(5);
  choice->removeItem(5);
  choice->addItem(7, "Seven");
  EXPECT_EQ(choice->getValue(), -1);
  EXPECT_TRUE(choice->perform("select", "7"));
  choice->removeAll();
  EXPECT_THAT(log.take(), testing::ElementsAre("preset changed"));
  EXPECT_EQ(choice->itemCount(), 0);
}

TEST_F(ChoicesQt, DisabledChoicesTakeNoInput) {
  choice->setValue(10);
  choice->setFocus();
  choice->setEnabled(false);
  QTest::keyClick(choice->comboBox(), Qt::Key_Down);
  choice->setEnabled(true);
  choice->setLocked(true);
  QTest::keyClick(choice->comboBox(), Qt::Key_Down);
  EXPECT_EQ(choice->getValue(), 10);
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

TEST_F(ChoicesQt, TypedTextStaysTypedText) {
  auto* editable =
      static_cast<MuChoiceQt*>(MuChoice::create(column, "name", "Name", MuChoice::Editable));
  editable->addItem(1, "Administrators");
  dialog->relayout();
  editable->setFocus();
  QTest::keyClicks(editable->comboBox()->lineEdit(), "Guests");
  QTest::keyClick(editable->comboBox()->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(editable->getText(), plat::String("Guests"));
  EXPECT_EQ(editable->itemCount(), 1);
  EXPECT_EQ(editable->getValue(), -1);
  EXPECT_EQ(editable->comboBox()->completer(), nullptr);
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

TEST_F(ChoicesQt, TheClosedListHoldsItsWidestItem) {
  const QFontMetrics metrics(choice->comboBox()->font());
  EXPECT_GT(choice->minControlWidth(),
            metrics.horizontalAdvance(QStringLiteral("Full control")) + 10);
  EXPECT_GE(choice->minControlHeight(), metrics.height());
  EXPECT_EQ(choice->comboBox()->maxVisibleItems(), 20);
}

} // namespace
} // namespace mui::test
