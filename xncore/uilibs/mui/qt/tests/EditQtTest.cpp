// Edits on Qt: real keys, pastes and input method text reach the abstract
// half and its filter as on the headless binding; changes that come another
// way (the context menu's paste, undo) are undone when the filter refuses
// them; disabled edits take nothing; a caption's mnemonic focuses its edit.
#include "ControlsQtForm.h"

#include "mui/MuButton.h"
#include "mui/MuEdit.h"
#include "mui/qt/MuEditQt.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

namespace mui::test {
namespace {

class EditsQt : public ControlsQtForm {
protected:
  void SetUp() override {
    ControlsQtForm::SetUp();
    edit = static_cast<MuEditQt*>(MuEdit::create(column, "percent", "&Percent"));
    box = static_cast<MuEditQt*>(MuEdit::create(column, "notes", "N&otes", MuEdit::Multiline));
    ok = MuButton::create(column, "ok", "OK");
    dialog->setButton(MuDialog::DefaultButton, ok);
    edit->setFilter(&percent);
    show();
  }
  std::string text(MuEdit* e) { return e->getText().get(); }
  static void type(QWidget* widget, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
  }

  MuEditQt* edit = nullptr;
  MuEditQt* box = nullptr;
  MuButton* ok = nullptr;
  MuEdit::NumericFilter percent{0, 100};
};

TEST_F(EditsQt, TheFilterHoldsAgainstTypedAndPastedText) {
  edit->setFocus();
  QTest::keyClicks(edit->lineEdit(), "1005");
  EXPECT_EQ(text(edit), "100");
  EXPECT_THAT(log.take(),
              testing::ElementsAre("percent changed", "percent changed", "percent changed"));
  QTest::keyClick(edit->lineEdit(), Qt::Key_Backspace);
  QGuiApplication::clipboard()->setText(QStringLiteral("7"));
  QTest::keyClick(edit->lineEdit(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text(edit), "10");
  edit->select(0, -1);
  QGuiApplication::clipboard()->setText(QStringLiteral("42"));
  QTest::keyClick(edit->lineEdit(), Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(text(edit), "42");
  EXPECT_THAT(log.take(), testing::ElementsAre("percent changed", "percent changed"));
}

TEST_F(EditsQt, ALineTakesAPastedTextOfAnyLength) {
  auto* line = static_cast<MuEditQt*>(MuEdit::create(column, "line", nullptr));
  dialog->relayout();
  const std::string pasted(100000, 'x');
  QGuiApplication::clipboard()->setText(QString::fromStdString(pasted));
  line->setFocus();
  QTest::keyClick(line->lineEdit(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text(line), pasted);
}

TEST_F(EditsQt, ChangesThatPassTheKeysAreUndoneWhenRefused) {
  edit->setText("50");
  QGuiApplication::clipboard()->setText(QStringLiteral("0"));
  edit->lineEdit()->paste(); // as the context menu does: "500"
  EXPECT_EQ(text(edit), "50");
  edit->lineEdit()->setCursorPosition(0);
  edit->lineEdit()->insert(QStringLiteral("1")); // "150"
  EXPECT_EQ(text(edit), "50");
  edit->lineEdit()->end(false);
  edit->lineEdit()->backspace(); // "5" is fine
  EXPECT_EQ(text(edit), "5");
  EXPECT_THAT(log.take(), testing::ElementsAre("percent changed"));
}

TEST_F(EditsQt, MultibyteTextAndInputMethodsGoThroughTheFilter) {
  struct Limit : MuEdit::Filter {
    std::vector<std::string> asked;
    bool accept(MuEdit*, const char* newText, int typedChar) override {
      asked.push_back(std::string(newText) + "|" + std::to_string(typedChar));
      return std::string(newText).size() <= 9;
    }
  } limit;
  edit->setFilter(&limit);
  edit->setFocus();
  type(edit->lineEdit(), QStringLiteral("é"));
  type(edit->lineEdit(), QString::fromUtf8("😀"));
  QInputMethodEvent commit;
  commit.setCommitString(QString::fromUtf8("中"));
  QApplication::sendEvent(edit->lineEdit(), &commit);
  type(edit->lineEdit(), QString::fromUtf8("文")); // one byte too many
  // A lone surrogate half is consumed and never reaches the filter.
  type(edit->lineEdit(), QString(QChar(0xD83D)));
  EXPECT_EQ(text(edit), "é😀中");
  EXPECT_THAT(limit.asked,
              testing::ElementsAre("é|233", "é😀|128512", "é😀中|20013", "é😀中文|25991"));
  edit->setFilter(nullptr);
}

TEST_F(EditsQt, DisabledAndLockedEditsTakeNoInput) {
  edit->setText("1");
  for (void (*apply)(MuEdit*, bool) : {+[](MuEdit*e, bool on) { e->setEnabled(!on); },
                                       +[](MuEdit*e, bool on) { e->setLocked(on); }}) {
    apply(edit, true);
    apply(box, true);
    QTest::keyClicks(edit->lineEdit(), "2");
    QTest::keyClicks(box->textEdit(), "x");
    apply(edit, false);
    apply(box, false);
  }
  EXPECT_EQ(text(edit), "1");
  EXPECT_EQ(text(box), "");
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

TEST_F(EditsQt, ReturnMakesANewLineAndShiftReturnPressesTheDefaultButton) {
  box->setFocus();
  QTest::keyClicks(box->textEdit(), "a");
  QTest::keyClick(box->textEdit(), Qt::Key_Return);
  QTest::keyClicks(box->textEdit(), "b");
  QTest::keyClick(box->textEdit(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(text(box), "a\nb");
  edit->setFocus();
  QTest::keyClick(edit->lineEdit(), Qt::Key_Return);
  EXPECT_THAT(log.take(), testing::ElementsAre("notes changed", "notes changed", "notes changed",
                                               "ok clicked", "ok clicked"));
  // Tab leaves the box rather than going into it.
  box->setFocus();
  QTest::keyClick(box->textEdit(), Qt::Key_Tab);
  EXPECT_EQ(text(box), "a\nb");
  EXPECT_FALSE(box->textEdit()->hasFocus());
}

TEST_F(EditsQt, CaptionMnemonicsFocusTheirEditAndPasswordsStayHidden) {
  QTest::keyClick(window(), Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(box->textEdit()->hasFocus());
  QTest::keyClick(window(), Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(edit->lineEdit()->hasFocus());

  auto* secret =
      static_cast<MuEditQt*>(MuEdit::create(column, "secret", "Secret", MuEdit::Password));
  dialog->relayout();
  secret->setFocus();
  QTest::keyClicks(secret->lineEdit(), "pa55");
  EXPECT_EQ(secret->lineEdit()->echoMode(), QLineEdit::Password);
  EXPECT_EQ(text(secret), "pa55");
  EXPECT_THAT(secret->describe().get(), testing::HasSubstr("value <hidden>\n"));
  EXPECT_THAT(log.take(), testing::Contains("secret changed"));
}

// The box is as high as its caption's line or the house least height, and a
// line higher for each line its text wraps into.
TEST_F(EditsQt, ABoxOfManyLinesGrowsWithItsText) {
  box->setLabelLayout(box->labelWidth() + Mui::metric(MetricLabelGap), -1);
  const int oneLine = box->minHeight(300);
  box->setText("An administrator writes a note that runs over several lines of this box.");
  EXPECT_GT(box->minHeight(300), oneLine);
  EXPECT_GT(box->minHeight(150), box->minHeight(300));
  EXPECT_EQ(box->heightForRows(3) - box->heightForRows(1),
            2 * QFontMetrics(box->textEdit()->font()).lineSpacing());
  EXPECT_GE(edit->minHeight(INT_MAX), edit->lineEdit()->sizeHint().height());
}

// At the height it measures, a box shows all its lines without scrolling.
TEST_F(EditsQt, ABoxShowsItsLinesAtTheHeightItMeasures) {
  struct Case {
    const char* text;
    int rows;
    int width;
  } cases[] = {
      {"one\ntwo\nthree", 3, 300},
      {"A note long enough to wrap into a second and a third line.\nAnd one more.", 1, 200},
      {"four\nlines\nof\ntext", 4, 150}};
  for (const Case& c : cases) {
    box->setText(c.text);
    box->setMinHeight(box->heightForRows(c.rows));
    box->setLabelLayout(box->labelWidth() + Mui::metric(MetricLabelGap), -1);
    const int height = box->minHeight(c.width);
    box->setSize({c.width, height});
    processFor(10);
    EXPECT_EQ(box->textEdit()->verticalScrollBar()->maximum(), 0) << c.text << " at " << height;
  }
}

} // namespace
} // namespace mui::test
