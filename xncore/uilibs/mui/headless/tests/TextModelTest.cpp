// The headless text model, which every toolkit test's expected sizes rest on.
#include "mui/headless/TextModelHeadless.h"

#include <gtest/gtest.h>

#include <climits>

namespace mui {
namespace {

MuStyle style(int size, int weight) {
  MuStyle s;
  s.fontSize = size;
  s.fontWeight = weight;
  return s;
}

TEST(TextModelHeadless, AdvanceAndLineFollowTheFontSize) {
  struct Row {
    int size;
    int weight;
    int advance;
    int line;
  } rows[] = {
      {120, 400, 7, 16}, {120, 549, 7, 16}, {120, 550, 8, 16}, {240, 700, 15, 32},
      {90, 400, 5, 12},  {8, 400, 0, 1},    {150, 400, 9, 20},
  };
  for (const Row& row : rows) {
    TextModelHeadless model(style(row.size, row.weight), false);
    EXPECT_EQ(model.advance(), row.advance) << row.size << "/" << row.weight;
    EXPECT_EQ(model.lineHeight(), row.line) << row.size << "/" << row.weight;
  }
}

TEST(TextModelHeadless, WidthsCountCodePointsOfTheLongestLine) {
  struct Row {
    const char* text;
    bool mnemonics;
    int width;
  } rows[] = {
      {"", false, 0},          {"abc", false, 21},         {"ab\nabcd\n", false, 28},
      {"Grüße", false, 35},    {"用户和组", false, 28},    {"&OK", true, 14},
      {"&OK", false, 21},      {"Save && Quit", true, 77}, {"a&&&b", true, 21},
      {"trailing&", true, 56},
  };
  for (const Row& row : rows)
    EXPECT_EQ(TextModelHeadless(MuStyle(), row.mnemonics).width(row.text), row.width) << row.text;
}

TEST(TextModelHeadless, HeightsWrapGreedilyAtSpaces) {
  struct Row {
    const char* text;
    int width;
    bool singleLine;
    int lines; // -1: zero height
  } rows[] = {
      {"abcd efgh ijkl", 0, false, -1},
      {"abcd efgh ijkl", -5, false, -1},
      {"abcd efgh ijkl", 28, false, 3},
      {"abcd efgh ijkl", 63, false, 2},
      {"abcd efgh ijkl", 98, false, 1},
      {"abcd efgh ijkl", 28, true, 1},
      {"abcd efgh ijkl", INT_MAX, false, 1},
      {"a\nb", INT_MAX, false, 2},
      {"", 100, false, 1},
      {"abcdefghij", 28, false, 3},
      {"abcdefghij", 1, false, 10},
      {"ab  cd", 28, false, 2},
      {"ab cd\n\nef", 100, false, 3},
      {"ab cd", 35, false, 1},
      {"ab cd ", 35, false, 2},
  };
  TextModelHeadless model(MuStyle(), false);
  for (const Row& row : rows) {
    const int expected = row.lines < 0 ? 0 : row.lines * model.lineHeight();
    EXPECT_EQ(model.height(row.text, row.width, row.singleLine), expected)
        << "'" << row.text << "' at " << row.width;
  }
}

TEST(TextModelHeadless, SpacesAtABreakAreDroppedAndLongWordsCut) {
  TextModelHeadless model(MuStyle(), false);
  const std::vector<std::u32string> lines = model.wrap("one two three abcdefghijk", 35);
  EXPECT_EQ(lines,
            (std::vector<std::u32string>{U"one", U"two", U"three", U"abcde", U"fghij", U"k"}));
}

} // namespace
} // namespace mui
