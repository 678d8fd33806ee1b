// What one input does to an edit's text before the control applies it: the
// text the filter is asked about, the character it is told of, and which
// inputs pass unfiltered or are swallowed. Also the edit's text in UTF-16 and
// its UTF-8 offsets, and the numeric filter.
#include "mui/EditInput.h"

#include "mui/MuEdit.h"

#include <gtest/gtest.h>

#include <string>

namespace mui::test {
namespace {

std::string utf8(const EditText& text) {
  return text.toUtf8().data();
}

// "a😀b": the emoji is a surrogate pair, units 1 and 2.
struct InputCase {
  const char* what;
  const char* text;
  int selectionStart;
  int selectionEnd;
  EditInput input;
  EditVerdict verdict;
  const char* after;
  char32_t typed;
};

EditInput key(EditInput::Kind kind, bool shift = false, bool control = false, bool alt = false) {
  EditInput input;
  input.kind = kind;
  input.shift = shift;
  input.control = control;
  input.alt = alt;
  return input;
}

EditInput character(char32_t c) {
  EditInput input;
  input.character = c;
  return input;
}

TEST(EditInput, EachInputMakesTheTextTheFilterIsAskedAbout) {
  using V = EditVerdict;
  using K = EditInput;
  const InputCase cases[] = {
      {"typed at the caret", "abc", 3, 3, character('d'), V::Filtered, "abcd", 'd'},
      {"typed over a selection", "abc", 1, 2, character(U'é'), V::Filtered, "aéc", U'é'},
      {"typed beyond the BMP", "ab", 1, 1, character(U'😀'), V::Filtered, "a😀b", U'😀'},
      {"a surrogate half", "ab", 1, 1, character(0xD83D), V::Swallowed, "ab", 0},
      {"a control character", "ab", 2, 2, character('\t'), V::Unfiltered, "ab", 0},
      {"DEL", "ab", 2, 2, character(127), V::Unfiltered, "ab", 0},
      {"backspace after a pair", "a😀b", 3, 3, key(K::Backspace), V::Filtered, "ab", 0},
      {"backspace at the start", "ab", 0, 0, key(K::Backspace), V::Filtered, "ab", 0},
      {"backspace over a selection", "abcd", 1, 3, key(K::Backspace), V::Filtered, "ad", 0},
      {"control backspace", "ab", 2, 2, key(K::Backspace, false, true), V::Unfiltered, "ab", 0},
      {"delete before a pair", "a😀b", 1, 1, key(K::Delete), V::Filtered, "ab", 0},
      {"delete at the end", "ab", 2, 2, key(K::Delete), V::Filtered, "ab", 0},
      {"shift delete", "abc", 2, 2, key(K::Delete, true), V::Filtered, "ac", 0},
      {"control delete", "abcd", 1, 1, key(K::Delete, false, true), V::Filtered, "a", 0},
      {"shift delete of a selection", "abcd", 1, 3, key(K::Delete, true), V::Filtered, "ad", 0},
      {"alt delete", "ab", 0, 0, key(K::Delete, false, false, true), V::Unfiltered, "ab", 0},
      {"control shift delete", "ab", 0, 0, key(K::Delete, true, true), V::Unfiltered, "ab", 0},
      {"cut", "abc", 0, 2, key(K::Cut), V::Filtered, "c", 0},
      {"cut of nothing", "abc", 1, 1, key(K::Cut), V::Filtered, "abc", 0},
      {"clear", "abc", 1, 3, key(K::Clear), V::Filtered, "a", 0},
      {"an empty clipboard", "abc", 1, 2, key(K::Paste), V::Swallowed, "abc", 0},
  };
  for (const InputCase& c : cases) {
    EditText text = EditText::fromUtf8(c.text, false);
    text.select(c.selectionStart, c.selectionEnd);
    char32_t typed = 0xFFFF;
    EXPECT_EQ(applyEditInput(text, c.input, &typed), c.verdict) << c.what;
    EXPECT_EQ(utf8(text), c.after) << c.what;
    if (c.verdict == V::Filtered) {
      EXPECT_EQ(typed, c.typed) << c.what;
    }
  }
}

TEST(EditInput, APasteTakesThePlaceOfTheSelection) {
  EditText text = EditText::fromUtf8("abc", false);
  text.select(1, 2);
  const EditText clipboard = EditText::fromUtf8("中文", false);
  EditInput paste = key(EditInput::Paste);
  paste.clipboard = &clipboard;
  char32_t typed = 1;
  EXPECT_EQ(applyEditInput(text, paste, &typed), EditVerdict::Filtered);
  EXPECT_EQ(utf8(text), "a中文c");
  EXPECT_EQ(typed, 0u);
  // The caret follows the pasted text.
  EXPECT_EQ(text.selectionStart(), 3);
  EXPECT_FALSE(text.hasSelection());
  const EditText empty = EditText::fromUtf8("", false);
  paste.clipboard = &empty;
  EXPECT_EQ(applyEditInput(text, paste, &typed), EditVerdict::Swallowed);
}

TEST(EditText, Utf8OffsetsCountWholeCharacters) {
  // Bytes: a 1, é 2, 中 3, 😀 4, b 1; units: 1, 1, 1, 2, 1.
  const EditText text = EditText::fromUtf8("aé中😀b", true);
  EXPECT_EQ(text.length(), 6);
  EXPECT_TRUE(text.isSecure());
  EXPECT_TRUE(text.toUtf8().isSecure());
  struct Offset {
    int unit;
    int bytes;
  } offsets[] = {{0, 0}, {1, 1}, {2, 3}, {3, 6}, {5, 10}, {6, 11}};
  for (const Offset& o : offsets) {
    EXPECT_EQ(text.bytesBefore(o.unit), o.bytes) << o.unit;
    EXPECT_EQ(text.unitAtByte(o.bytes), o.unit) << o.bytes;
  }
  // Inside a character, the offset falls back to its start; beyond, to the end.
  EXPECT_EQ(text.unitAtByte(8), 3);
  EXPECT_EQ(text.unitAtByte(99), 6);
  EXPECT_EQ(text.bytesBefore(99), 11);
  EXPECT_EQ(utf8(EditText::fromUtf8("a\xff"
                                    "b",
                                    false)),
            "a\xEF\xBF\xBD"
            "b");
}

TEST(NumericFilter, AcceptsNumbersInRangeAndTheirBeginnings) {
  struct Case {
    int min;
    int max;
    const char* text;
    bool accepted;
  } cases[] = {
      {0, 100, "", true},     {0, 100, "-", false},   {0, 100, "0", true},
      {0, 100, "007", false}, {0, 100, "101", false}, {0, 100, "100", true},
      {0, 100, "1x", false},  {0, 100, "+", false},   {-5, 5, "-", true},
      {-5, 5, "-0", false},   {-5, 5, "-3", true},    {-5, 5, "+3", true},
      {-5, 5, "-6", false},   {-5, 5, "+0", true},    {-5, 5, "-03", false},
      {10, 20, "1", false},   {10, 20, "15", true},   {0, 100, "99999999999", false},
  };
  for (const Case& c : cases) {
    MuEdit::NumericFilter filter(c.min, c.max);
    EXPECT_EQ(filter.accept(nullptr, c.text, 0), c.accepted)
        << c.min << ".." << c.max << " \"" << c.text << "\"";
  }
}

} // namespace
} // namespace mui::test
