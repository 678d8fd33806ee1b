// Edits on the headless binding: typed, deleted, cut and pasted text through
// the filter (multibyte and over-long text too), the events of the user's and
// the program's changes, selections in UTF-8 bytes, passwords, the keys of a
// box of many lines, and the measure beside a caption.
#include "EventLog.h"
#include "HeadlessForm.h"

#include "mui/MuButton.h"
#include "mui/MuEdit.h"
#include "mui/headless/LabelWrapperHeadless.h"
#include "mui/headless/MuEditHeadless.h"
#include "plat/utf8.h"

#include <gmock/gmock.h>

#include <climits>
#include <string>
#include <vector>

namespace mui::test {
namespace {

// Writes down what it was asked and refuses texts of more than `limit` code points.
struct RecordingFilter : MuEdit::Filter {
  explicit RecordingFilter(int most) : limit(most) {}
  bool accept(MuEdit*, const char* newText, int typedChar) override {
    asked.push_back(std::string(newText) + "|" + std::to_string(typedChar));
    return plat::codePointCount(newText) <= limit;
  }
  int limit;
  std::vector<std::string> asked;
};

class Edits : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
    edit = static_cast<MuEditHeadless*>(MuEdit::create(column, "name", "&Name:"));
    dialog->setVisible(true);
    column->addObserver(&log);
  }
  std::string text() { return edit->getText().get(); }

  MuLayout* column = nullptr;
  MuEditHeadless* edit = nullptr;
  EventLog log;
};

TEST_F(Edits, TheFilterSeesTypedAndPastedTextInUtf8) {
  RecordingFilter filter(4);
  edit->setFilter(&filter);
  EXPECT_TRUE(edit->type("é中"));
  EXPECT_TRUE(edit->typeCharacter(U'😀'));
  EXPECT_FALSE(edit->paste("xy")); // five code points are too many
  edit->select(0, 2);              // "é" is two bytes
  EXPECT_TRUE(edit->paste("ab"));
  EXPECT_TRUE(edit->pressBackspace());
  EXPECT_THAT(filter.asked, testing::ElementsAre("é|233", "é中|20013", "é中😀|128512", "é中😀xy|0",
                                                 "ab中😀|0", "a中😀|0"));
  EXPECT_EQ(text(), "a中😀");
  EXPECT_THAT(log.take(), testing::ElementsAre("name changed", "name changed", "name changed",
                                               "name changed", "name changed"));
}

TEST_F(Edits, OverLongInputIsRefusedWholeAndTypingStopsAtTheLimit) {
  RecordingFilter filter(5);
  edit->setFilter(&filter);
  EXPECT_FALSE(edit->type("abcdefgh"));
  EXPECT_EQ(text(), "abcde");
  EXPECT_FALSE(edit->paste("123"));
  edit->select(1, 3);
  EXPECT_TRUE(edit->paste("123"));
  EXPECT_EQ(text(), "a123e");
  // A refused input changes nothing and raises nothing.
  log.take();
  EXPECT_FALSE(edit->typeCharacter('z'));
  EXPECT_EQ(text(), "a123e");
  EXPECT_THAT(log.take(), testing::IsEmpty());
}

TEST_F(Edits, ANumericFilterHoldsWhileTypingDeletingAndPasting) {
  MuEdit::NumericFilter percent(0, 100);
  edit->setFilter(&percent);
  struct Step {
    const char* what;
    void (*act)(MuEditHeadless*);
    const char* text;
  } steps[] = {
      {"typed", [](MuEditHeadless* e) { e->type("1005"); }, "100"},
      {"backspace", [](MuEditHeadless* e) { e->pressBackspace(); }, "10"},
      {"pasted", [](MuEditHeadless* e) { e->paste("7"); }, "10"},
      {"shift delete", [](MuEditHeadless* e) { e->pressDelete(true); }, "1"},
      {"cut",
       [](MuEditHeadless* e) {
         e->select(0, -1);
         e->cut();
       },
       ""},
      {"leading zero", [](MuEditHeadless* e) { e->type("07"); }, "0"},
      {"negative",
       [](MuEditHeadless* e) {
         e->select(0, -1);
         e->paste("-4");
       },
       "0"},
      {"tab", [](MuEditHeadless* e) { e->typeCharacter('\t'); }, "0"},
  };
  for (const Step& step : steps) {
    step.act(edit);
    EXPECT_EQ(text(), step.text) << step.what;
  }
}

TEST_F(Edits, OnlyTheUserAndPerformRaiseEvents) {
  edit->setText("Ostrand");
  edit->setCue("A name");
  EXPECT_THAT(log.take(), testing::IsEmpty());
  EXPECT_TRUE(edit->perform("settext", "Permissions"));
  EXPECT_EQ(text(), "Permissions");
  EXPECT_THAT(log.take(), testing::ElementsAre("name changed"));
  EXPECT_FALSE(edit->perform("settext", nullptr));
  EXPECT_FALSE(edit->perform("type", "x"));
  EXPECT_STREQ(edit->cue(), "A name");
  // Backspace at the start changes nothing, and says so by raising nothing.
  edit->select(0, 0);
  EXPECT_TRUE(edit->pressBackspace());
  EXPECT_THAT(log.take(), testing::IsEmpty());

  struct Row {
    const char* state;
    void (*apply)(MuEdit*, MuLayout*, bool);
  } rows[] = {
      {"disabled", [](MuEdit* e, MuLayout*, bool on) { e->setEnabled(!on); }},
      {"locked", [](MuEdit* e, MuLayout*, bool on) { e->setLocked(on); }},
      {"hidden", [](MuEdit*, MuLayout* l, bool on) { l->setVisible(!on); }},
  };
  for (const Row& r : rows) {
    r.apply(edit, column, true);
    EXPECT_FALSE(edit->type("x")) << r.state;
    EXPECT_FALSE(edit->paste("x")) << r.state;
    EXPECT_FALSE(edit->pressDelete()) << r.state;
    EXPECT_EQ(edit->perform("settext", "x"), std::string(r.state) == "hidden") << r.state;
    r.apply(edit, column, false);
  }
  EXPECT_THAT(log.take(), testing::ElementsAre("name changed"));
}

TEST_F(Edits, SelectionsCountUtf8Bytes) {
  edit->setText("aé中😀b");
  int length = -1;
  EXPECT_EQ(edit->getSelection(&length), 11);
  EXPECT_EQ(length, 0);
  struct Case {
    int start;
    int length;
    int gotStart;
    int gotLength;
  } cases[] = {{1, 5, 1, 5}, {0, -1, 0, 11}, {3, 100, 3, 8}, {100, 2, 11, 0}, {7, 1, 6, 0}};
  for (const Case& c : cases) {
    edit->select(c.start, c.length);
    EXPECT_EQ(edit->getSelection(&length), c.gotStart) << c.start;
    EXPECT_EQ(length, c.gotLength) << c.start;
  }
  edit->select(1, 2);
  edit->select(-1, 0);
  EXPECT_EQ(edit->getSelection(&length), 3);
  EXPECT_EQ(length, 0);
}

TEST_F(Edits, PasswordsStayHiddenAndSecure) {
  auto* secret =
      static_cast<MuEditHeadless*>(MuEdit::create(column, "secret", "Secret", MuEdit::Password));
  secret->type("s3cr€t");
  EXPECT_EQ(std::string(secret->getText().get()), "s3cr€t");
  EXPECT_TRUE(secret->text().isSecure());
  EXPECT_THAT(secret->describe().get(),
              testing::EndsWith("element Edit\ntype Password\nvalue <hidden>\n"));
  edit->setText("two\\lines\nhere");
  EXPECT_THAT(edit->describe().get(),
              testing::EndsWith("element Edit\ntype Text\nvalue two\\\\lines\\nhere\n"));
  EXPECT_STREQ(edit->typeName(), "edit");
}

TEST_F(Edits, ReturnMakesANewLineOnlyInABoxOfManyLines) {
  auto* box = static_cast<MuEditHeadless*>(
      MuEdit::create(column, "notes", nullptr, MuEdit::Multiline, MuEdit::NoBorder));
  MuButton* ok = MuButton::create(column, "ok", "OK");
  dialog->setButton(MuDialog::DefaultButton, ok);
  MuEdit::NumericFilter digits(0, 9);
  box->setFilter(&digits);
  box->type("1");
  EXPECT_TRUE(box->pressReturn()); // passes the filter, as control characters do
  EXPECT_TRUE(box->pressReturn(true));
  EXPECT_TRUE(edit->pressReturn());
  EXPECT_EQ(std::string(box->getText().get()), "1\n");
  EXPECT_THAT(log.take(),
              testing::ElementsAre("notes changed", "notes changed", "ok clicked", "ok clicked"));
}

// "Password:" is the wider caption: nine code points and the gap make the column.
TEST_F(Edits, CaptionsLineUpInOneColumn) {
  auto* password = static_cast<MuEditHeadless*>(
      MuEdit::create(column, "password", "Password:", MuEdit::Password));
  LabelWrapper::alignCaptions({edit, password});
  for (MuEditHeadless* e : {edit, password}) {
    e->setSize({200, 24});
    EXPECT_EQ(e->peer()->placed().control, Rect(63 + 4, 0, 200, 24)) << e->name();
  }
}

// At "ppmm" 4: code points 7 pixels, lines 16, the label gap 4, a control 24 high.
TEST_F(Edits, MeasureHoldsTheCaptionALineAndTheWrappedLines) {
  // "Name:" is five code points: 35 + 4 + 0 + 4.
  EXPECT_EQ(edit->minWidth(0), 35 + 4 + 4);
  EXPECT_EQ(edit->minHeight(INT_MAX), 24);
  EXPECT_EQ(edit->minHeight(0), 0);
  EXPECT_EQ(edit->labelWidth(), 35);
  edit->setMinHeight(30);
  EXPECT_EQ(edit->minHeight(INT_MAX), 30);

  MuEdit* box = MuEdit::create(column, "notes", "Notes", MuEdit::Multiline);
  box->setText("one two three four");
  EXPECT_EQ(box->heightForRows(3), 24 + 2 * 16);
  EXPECT_EQ(box->minHeight(INT_MAX), 24);
  // 39 pixels of caption column leave 70 for the box: ten code points a line,
  // then five.
  box->setLabelLayout(39, -1);
  EXPECT_EQ(box->minHeight(39 + 70), 24 + 16);
  EXPECT_EQ(box->minHeight(39 + 35), 24 + 3 * 16);
}

} // namespace
} // namespace mui::test
