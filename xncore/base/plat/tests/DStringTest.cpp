#include "plat/DString.h"

#include "plat/Exception.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using plat::DString;

TEST(DString, CapacityGrowsToPowersOfTwoFromEight) {
  const int steps[][2] = {{0, 0},   {1, 8},     {8, 8},     {9, 16},   {5, 16},
                          {17, 32}, {100, 128}, {128, 128}, {129, 256}};
  DString text;
  for (const auto& step : steps) {
    text.ensure(step[0]);
    EXPECT_EQ(text.capacity(), step[1]) << step[0];
    EXPECT_EQ(text.isNull(), step[1] == 0) << step[0];
  }

  // A block that grows keeps the contents and is terminated up to the new size.
  DString kept("abcdefg");
  const char* before = kept.get();
  kept.ensure(8);
  EXPECT_EQ(kept.get(), before);
  kept.ensure(20);
  EXPECT_NE(kept.get(), before);
  EXPECT_STREQ(kept.get(), "abcdefg");
  EXPECT_EQ(kept.get()[19], '\0');
}

TEST(DString, Append) {
  DString text;
  text.append(nullptr);
  EXPECT_TRUE(text.isNull());
  text.append("hello", 3);
  text.append("", 2);
  text.append("!", 5);
  text.append(" world", -1);
  EXPECT_STREQ(text.get(), "hel! world");
  EXPECT_EQ(text.length(), 10);
  EXPECT_EQ(text.capacity(), 16);

  DString chars("a");
  chars.appendChar(0x20AC, 3);
  chars.appendChar('b', 0);
  chars.appendChar('b', -2);
  chars.appendChar(0x1F600);
  EXPECT_STREQ(chars.get(), "a\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_THROW(chars.appendChar(0x110000), plat::Exception);
}

TEST(DString, AppendFormatGrowsPastTheFormatLength) {
  DString text("n=");
  text.appendFormat("%d", 1234567890);
  EXPECT_STREQ(text.get(), "n=1234567890");

  std::string big(1000, 'q');
  text.appendFormat("[%s|%05d]", big.c_str(), 42);
  EXPECT_EQ(text.get(), "n=1234567890[" + big + "|00042]");
  EXPECT_EQ(text.capacity(), 1024);

  // Every output length, so that each capacity boundary is crossed once.
  for (std::size_t length = 0; length < 70; ++length)
    EXPECT_EQ(plat::strFormat("%s", big.substr(0, length).c_str()).get(), big.substr(0, length));
}

TEST(DString, TakeStringLeavesItEmpty) {
  DString text("owned");
  const char* block = text.get();
  plat::String taken = text.takeString();
  EXPECT_EQ(taken.get(), block);
  EXPECT_STREQ(taken.get(), "owned");
  EXPECT_TRUE(text.isNull());
  EXPECT_EQ(text.capacity(), 0);
  text.append("again");
  EXPECT_STREQ(text.get(), "again");

  DString moved(std::move(text));
  EXPECT_STREQ(moved.get(), "again");
  EXPECT_TRUE(text.isNull()); // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(text.capacity(), 0);
}

TEST(DString, ReplaceAll) {
  struct Case {
    const char* text;
    const char* from;
    const char* to;
    const char* expected;
  };
  const Case cases[] = {
      {"a.b.c", ".", "::", "a::b::c"}, {"aaa", "aa", "b", "ba"}, // left to right, without overlap
      {"x-y-z", "-", nullptr, "xyz"},  {"", "q", "r", ""},       {"%s%d", "%", "%%", "%%s%%d"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_STREQ(plat::replaceAll(c.text, c.from, c.to).get(), c.expected);
    DString inPlace(c.text);
    inPlace.replaceAll(c.from, c.to);
    EXPECT_STREQ(inPlace.get(), c.expected);
  }
  EXPECT_TRUE(plat::replaceAll(nullptr, "a", "b").isNull());
}

TEST(DStringDeathTest, ReplaceAllOfEmptyIsFatal) {
  EXPECT_EXIT(plat::replaceAll("abc", "", "x"), ::testing::ExitedWithCode(1),
              "Assertion 'findLen' failed");
}

TEST(DString, ReplaceRange) {
  struct Case {
    int begin, end;
    const char* text;
    int maxLen;
    const char* expected;
  };
  const Case cases[] = {
      {1, 3, "XYZ", -1, "0XYZ3456"},
      {2, 2, "--", -1, "01--23456"},
      {5, 7, nullptr, -1, "01234"},
      {0, 1, "abcdef", 2, "ab123456"},
      {0, 7, "a long replacement text", -1, "a long replacement text"},
      // Out of range: silently nothing.
      {-1, 2, "X", -1, "0123456"},
      {3, 8, "X", -1, "0123456"},
      {4, 3, "X", -1, "0123456"},
  };
  for (const Case& c : cases) {
    DString text("0123456");
    text.replaceRange(c.begin, c.end, c.text, c.maxLen);
    EXPECT_STREQ(text.get(), c.expected) << c.begin << ".." << c.end;
  }
}

TEST(DString, MakeValidUtf8) {
  DString valid("caf\xC3\xA9");
  const char* block = valid.get();
  EXPECT_FALSE(valid.makeValidUtf8());
  EXPECT_EQ(valid.get(), block);
  EXPECT_STREQ(valid.get(), "caf\xC3\xA9");

  DString broken("a\xFF\x62\xC3");
  EXPECT_TRUE(broken.makeValidUtf8());
  EXPECT_STREQ(broken.get(), "a\xEF\xBF\xBD\x62\xEF\xBF\xBD");
}

TEST(DString, WordWrap) {
  struct Case {
    const char* text;
    int width, indent;
    const char* expected;
  };
  const Case cases[] = {
      {"the quick brown fox", 9, 2, "the quick\n  brown\n  fox"},
      {"aaaa bbbb", 9, 0, "aaaa bbbb"}, // exactly the width still fits
      // A word too wide for a fresh line stays whole.
      {"a\nbbbbbbbbbbbbbbbbbbbb c", 10, 2, "a\nbbbbbbbbbbbbbbbbbbbb\n  c"},
      {"  indented   text", 20, 0, "  indented   text"},
      {"trailing   ", 20, 0, "trailing"},
      {"line\n\n  next", 20, 4, "line\n\n  next"},
      // Width counts code points: five two-byte letters take five columns.
      {"\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9 x", 7, 0,
       "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9 x"},
      {"", 10, 0, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    DString text(c.text);
    text.wordWrap(c.width, c.indent);
    EXPECT_STREQ(text.get(), c.expected);
    EXPECT_STREQ(plat::wrapText(c.text, c.width, c.indent).get(), c.expected);
  }
  DString null;
  null.wordWrap(10, 0);
  EXPECT_TRUE(null.isNull());
}

} // namespace
