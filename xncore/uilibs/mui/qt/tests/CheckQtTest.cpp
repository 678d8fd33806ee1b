// Check boxes and radio buttons on Qt: clicks, Space, mnemonics and the
// arrow keys of a radio group reach the abstract half and raise the same
// events as on the headless binding; disabled and locked checks raise none.
#include "ControlsQtForm.h"

#include "mui/MuCheck.h"
#include "mui/qt/MuCheckQt.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QFontMetrics>
#include <QStyleOptionButton>
#include <QTest>

namespace mui::test {
namespace {

class ChecksQt : public ControlsQtForm {
protected:
  void SetUp() override {
    ControlsQtForm::SetUp();
    box = MuCheck::create(column, "box", "&Allow");
    a = MuCheck::create(column, "a", "Radio A", MuCheck::Radio);
    b = MuCheck::create(column, "b", "Radio &B", MuCheck::Radio, a);
    c = MuCheck::create(column, "c", "Radio C", MuCheck::Radio, a);
    show();
  }
  static QAbstractButton* widget(MuCheck* check) {
    return static_cast<MuCheckQt*>(check)->widget();
  }
  std::string values() {
    std::string result;
    for (MuCheck* check : {box, a, b, c})
      result += check->isIndeterminate() ? '-' : check->getValue() ? '1' : '0';
    return result;
  }

  MuCheck* box = nullptr;
  MuCheck *a = nullptr, *b = nullptr, *c = nullptr;
};

TEST_F(ChecksQt, ClicksSpaceAndMnemonicsToggleThroughTheAbstractHalf) {
  QTest::mouseClick(widget(box), Qt::LeftButton);
  EXPECT_EQ(values(), "1000");
  box->setIndeterminate();
  EXPECT_EQ(values(), "-000");
  box->setFocus();
  QTest::keyClick(widget(box), Qt::Key_Space);
  EXPECT_EQ(values(), "0000");
  QTest::keyClick(window(), Qt::Key_A, Qt::AltModifier);
  processFor(250);
  EXPECT_EQ(values(), "1000");
  EXPECT_THAT(log.take(), testing::ElementsAre("box changed", "box changed", "box changed"));
}

TEST_F(ChecksQt, RadiosStayExclusiveAndArrowsSelectTheNeighbour) {
  QTest::mouseClick(widget(b), Qt::LeftButton);
  QTest::mouseClick(widget(b), Qt::LeftButton);
  EXPECT_EQ(values(), "0010");
  // Only the first member is a tab stop.
  EXPECT_TRUE(widget(a)->focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(widget(c)->focusPolicy() & Qt::TabFocus);
  c->setEnabled(false);
  b->setFocus();
  QTest::keyClick(widget(b), Qt::Key_Down); // c is disabled: round to a
  EXPECT_EQ(values(), "0100");
  EXPECT_TRUE(widget(a)->hasFocus());
  QTest::keyClick(widget(a), Qt::Key_Up);
  EXPECT_EQ(values(), "0010");
  EXPECT_THAT(log.take(), testing::ElementsAre("b changed", "b changed", "a changed", "b changed"));
}

TEST_F(ChecksQt, DisabledAndLockedChecksTakeNoInput) {
  box->setEnabled(false);
  b->setLocked(true);
  QTest::mouseClick(widget(box), Qt::LeftButton);
  QTest::mouseClick(widget(b), Qt::LeftButton);
  QTest::keyClick(window(), Qt::Key_B, Qt::AltModifier);
  processFor(250);
  EXPECT_EQ(values(), "0000");
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

// A check with images paints the image of its state where the box would be.
TEST_F(ChecksQt, StateImagesArePaintedInPlaceOfTheBox) {
  MuCheck* pictured =
      MuCheck::create(column, "pictured", "Pictured", MuCheck::Normal, nullptr, "check");
  dialog->relayout();
  QWidget* w = widget(pictured);
  const int side = pictured->boxSize().height;
  EXPECT_EQ(side, 13);
  auto imageArea = [&] {
    return w->grab().toImage().copy(0, (w->height() - side) / 2, side, side);
  };
  const QImage unset = imageArea();
  pictured->setValue(true);
  const QImage set = imageArea();
  pictured->setIndeterminate();
  const QImage indeterminate = imageArea();
  EXPECT_NE(unset, set);
  EXPECT_NE(set, indeterminate);
  EXPECT_NE(unset, indeterminate);
  QTest::mouseClick(w, Qt::LeftButton);
  EXPECT_EQ(imageArea(), unset);
  EXPECT_THAT(log.take(), testing::ElementsAre("pictured changed"));
}

// The label starts where the style's box ends, so the measure makes room for both.
TEST_F(ChecksQt, MeasureHoldsTheStyleBoxAndTheLabel) {
  const QFontMetrics metrics(widget(box)->font());
  QStyleOptionButton option;
  option.initFrom(widget(box));
  option.rect = QRect(0, 0, 500, 100);
  const int contents = widget(box)
                           ->style()
                           ->subElementRect(QStyle::SE_CheckBoxContents, &option, widget(box))
                           .left();
  EXPECT_GE(box->minWidth(0), contents + metrics.horizontalAdvance(QStringLiteral("Allow")));
  EXPECT_GE(box->boxSize().width, contents);
  EXPECT_GE(box->minHeight(INT_MAX), metrics.height());
}

} // namespace
} // namespace mui::test
