// Buttons on Qt: real clicks, keys and mnemonics reach the abstract half and
// raise the same events as on the headless binding; disabled or locked
// buttons raise none; the default button leaves Return to its dialog.
#include "ControlsQtForm.h"

#include "mui/MuButton.h"
#include "mui/qt/MuButtonQt.h"

#include <gmock/gmock.h>

#include <QFontMetrics>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QTest>

namespace mui::test {
namespace {

class ButtonsQt : public ControlsQtForm {
protected:
  void SetUp() override {
    ControlsQtForm::SetUp();
    ok = MuButton::create(column, "ok", "&OK");
    other = MuButton::create(column, "other", "Ot&her");
    dialog->setButton(MuDialog::DefaultButton, ok);
    show();
  }
  static QPushButton* widget(MuButton* button) {
    return static_cast<MuButtonQt*>(button)->widget();
  }
  // Mnemonics click after the button's short press animation.
  void pressAlt(Qt::Key key) {
    QTest::keyClick(window(), key, Qt::AltModifier);
    processFor(250);
  }

  MuButton* ok = nullptr;
  MuButton* other = nullptr;
};

TEST_F(ButtonsQt, PointerKeysAndMnemonicsClick) {
  QTest::mouseClick(widget(ok), Qt::LeftButton);
  EXPECT_THAT(log.take(), testing::ElementsAre("ok clicked"));
  other->setFocus();
  QTest::keyClick(widget(other), Qt::Key_Space);
  QTest::keyClick(widget(other), Qt::Key_Return);
  EXPECT_THAT(log.take(), testing::ElementsAre("other clicked", "other clicked"));
  pressAlt(Qt::Key_H);
  EXPECT_THAT(log.take(), testing::ElementsAre("other clicked"));
  // Return on the default button goes to the dialog, which clicks it once.
  ok->setFocus();
  QTest::keyClick(widget(ok), Qt::Key_Return);
  EXPECT_THAT(log.take(), testing::ElementsAre("ok clicked"));
  EXPECT_TRUE(widget(ok)->isDefault());
  EXPECT_FALSE(widget(other)->isDefault());
  dialog->setButton(MuDialog::DefaultButton, other);
  EXPECT_FALSE(widget(ok)->isDefault());
  EXPECT_TRUE(widget(other)->isDefault());
}

TEST_F(ButtonsQt, DisabledAndLockedButtonsTakeNoInput) {
  for (void (*apply)(MuButton*, bool) : {+[](MuButton*b, bool on) { b->setEnabled(!on); },
                                         +[](MuButton*b, bool on) { b->setLocked(on); }}) {
    apply(ok, true);
    QTest::mouseClick(widget(ok), Qt::LeftButton);
    pressAlt(Qt::Key_O);
    EXPECT_THAT(log.take(), testing::IsEmpty());
    apply(ok, false);
    pressAlt(Qt::Key_O);
    EXPECT_THAT(log.take(), testing::ElementsAre("ok clicked"));
  }
}

TEST_F(ButtonsQt, FocusGoesBackToTheWindowAfterAClickWhenAsked) {
  MuButton* back = MuButton::create(column, "back", "Back", MuButton::Normal, MuButton::FocusBack);
  MuButton* none = MuButton::create(column, "none", "None", MuButton::Normal, MuButton::NoFocus);
  dialog->relayout();
  EXPECT_EQ(widget(none)->focusPolicy(), Qt::NoFocus);
  back->setFocus();
  QTest::mouseClick(widget(back), Qt::LeftButton);
  processFor(50);
  EXPECT_EQ(QApplication::focusWidget(), window());
  EXPECT_THAT(log.take(), testing::ElementsAre("back clicked"));
}

// The frame of the platform's style is wider than the house padding on some
// styles: the button grows so that its label never clips.
TEST_F(ButtonsQt, MeasureMakesRoomForTheStyleFrame) {
  ok->setLabel("A rather long label for one button");
  const QFontMetrics metrics(widget(ok)->font());
  const int text = metrics.horizontalAdvance(QStringLiteral("A rather long label for one button"));
  QStyleOptionButton option;
  option.initFrom(widget(ok));
  const QSize frame = widget(ok)->style()->sizeFromContents(QStyle::CT_PushButton, &option,
                                                            QSize(0, 0), widget(ok));
  EXPECT_GE(ok->minWidth(0), text + std::max(frame.width(), Mui::toPixels(24)));
  EXPECT_GE(ok->minHeight(INT_MAX), metrics.height() + frame.height());
  EXPECT_EQ(widget(ok)->text(), "A rather long label for one button");
}

} // namespace
} // namespace mui::test
