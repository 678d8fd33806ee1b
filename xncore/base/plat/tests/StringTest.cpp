#include "plat/String.h"

#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/StringUtils.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

using plat::DString;
using plat::String;

TEST(String, NullIsDistinctFromEmptyAndOrdersFirst) {
  String null;
  String empty("");
  EXPECT_NE(null, empty);
  EXPECT_TRUE(null < empty);
  EXPECT_TRUE(empty < String("a"));
  EXPECT_FALSE(empty == static_cast<const char*>(nullptr));
  EXPECT_LT(plat::compare(nullptr, ""), 0);
  EXPECT_EQ(plat::compare(nullptr, nullptr), 0);

  EXPECT_TRUE(plat::strDup(nullptr, 3).isNull());
  EXPECT_EQ(plat::strDup("abc", 0), empty); // a zero bound still gives a string
  EXPECT_STREQ(plat::strDup("abc", 2).get(), "ab");
}

TEST(StringUtils, AffixesSearchAndTransforms) {
  // A null affix matches everything; null text matches only an empty affix.
  // Columns: startsWith, startsWithNoCase, endsWith, endsWithNoCase.
  const char* const cases[][3] = {{"Hello", "he", "0100"},    {"Hello", "LLO", "0001"},
                                  {"Hello", "llo", "0011"},   {"Hello", "Hello!", "0000"},
                                  {"Hello", nullptr, "1111"}, {nullptr, "", "1111"},
                                  {nullptr, "a", "0000"}};
  for (const auto& c : cases) {
    std::string got;
    for (bool match : {plat::startsWith(c[0], c[1]), plat::startsWithNoCase(c[0], c[1]),
                       plat::endsWith(c[0], c[1]), plat::endsWithNoCase(c[0], c[1])})
      got += match ? '1' : '0';
    EXPECT_EQ(got, c[2]) << (c[0] ? c[0] : "<null>") << " / " << (c[1] ? c[1] : "<null>");
  }
  EXPECT_STREQ(plat::findNoCase("The Quick Fox", "qUICK"), "Quick Fox");
  const char embedded[] = "ab\0,"; // the scan stops at the NUL even when `end` lies beyond it
  EXPECT_FALSE(plat::containsChar(embedded, embedded + 4, ','));

  char padded[] = " \t\v-x_ \f\r\n ";
  plat::trimLeft(padded);
  plat::trimRight(padded);
  plat::removeChars(padded, "-_");
  EXPECT_STREQ(padded, "\vx \f"); // vertical tab and form feed are not whitespace here
  char ascii[] = "MiXeD\xC3\x89";
  plat::lowerAscii(ascii);
  EXPECT_STREQ(ascii, "mixed\xC3\x89");
  EXPECT_STREQ(plat::insertEvery("abcdefg", '-', 3).get(), "abc-def-g");
  EXPECT_EQ(plat::hash64("\xC3\xA9"), 0x0ac21707b7181e01ULL); // bytes enter unsigned
}

using Tokens = std::vector<std::string>;

// Runs a tokeniser to the end; after the last token the cursor is null and stays there.
template <class Next>
Tokens tokens(const char* text, Next next) {
  std::vector<char> buffer(text, text + std::strlen(text) + 1);
  char* cursor = buffer.data();
  Tokens result;
  for (char* token; result.size() < 20 && (token = next(cursor)) != nullptr;)
    result.emplace_back(token);
  EXPECT_EQ(cursor, nullptr);
  EXPECT_EQ(next(cursor), nullptr);
  return result;
}

TEST(StringUtils, Tokenisers) {
  EXPECT_EQ(tokens(",a,,b,", [](char*& at) { return plat::nextToken(at, ','); }),
            (Tokens{"", "a", "", "b", ""}));
  EXPECT_EQ(tokens(",,a,,b,,", [](char*& at) { return plat::nextToken(at, ',', true); }),
            (Tokens{"a", "b"}));
  char text[] = "a=b";
  char* cursor = text;
  char found = 'x';
  EXPECT_STREQ(plat::nextTokenAny(cursor, "=;", &found), "a");
  EXPECT_EQ(found, '=');
  EXPECT_STREQ(plat::nextTokenAny(cursor, "=;", &found), "b");
  EXPECT_EQ(found, '\0');

  EXPECT_EQ(plat::splitToSet("b,,b", ','), (std::set<String>{String(""), String("b")}));
}

TEST(DString, GrowthAndAppending) {
  // Powers of two from eight; a smaller request never shrinks, and the contents stay.
  const int steps[][2] = {{1, 8}, {8, 8}, {9, 16}, {5, 16}, {17, 32}, {129, 256}};
  DString text("abc");
  for (const auto& step : steps) {
    text.ensure(step[0]);
    EXPECT_EQ(text.capacity(), step[1]) << step[0];
  }
  text.appendChar(0x20AC, 2);
  EXPECT_STREQ(text.get(), "abc\xE2\x82\xAC\xE2\x82\xAC");
  EXPECT_THROW(text.appendChar(0x110000), plat::Exception);

  // Every output length, so that each capacity boundary is crossed once.
  std::string big(70, 'q');
  for (std::size_t length = 0; length < big.size(); ++length) {
    DString formatted("n=");
    formatted.appendFormat("%s|%d", big.substr(0, length).c_str(), 7);
    EXPECT_EQ(formatted.get(), "n=" + big.substr(0, length) + "|7");
  }
}

TEST(DString, ReplaceAllAndRange) {
  // Left to right without overlap; a null `to` deletes.
  const char* const cases[][4] = {
      {"a.b.c", ".", "::", "a::b::c"}, {"aaa", "aa", "b", "ba"}, {"x-y-z", "-", nullptr, "xyz"}};
  for (const auto& c : cases) {
    EXPECT_STREQ(plat::replaceAll(c[0], c[1], c[2]).get(), c[3]) << c[0];
    DString inPlace(c[0]);
    inPlace.replaceAll(c[1], c[2]);
    EXPECT_STREQ(inPlace.get(), c[3]) << c[0];
  }

  struct Range { // out of range leaves the text alone
    int begin, end, maxLen;
    const char* expected;
  };
  const Range ranges[] = {{1, 3, -1, "0XYZ3456"}, {2, 2, -1, "01XYZ23456"}, {0, 1, 2, "XY123456"},
                          {-1, 2, -1, "0123456"}, {3, 8, -1, "0123456"},    {4, 3, -1, "0123456"}};
  for (const Range& r : ranges) {
    DString text("0123456");
    text.replaceRange(r.begin, r.end, "XYZ", r.maxLen);
    EXPECT_STREQ(text.get(), r.expected) << r.begin << ".." << r.end;
  }
}

TEST(DStringDeathTest, ReplaceAllOfEmptyIsFatal) {
  EXPECT_EXIT(plat::replaceAll("abc", "", "x"), ::testing::ExitedWithCode(1),
              "Assertion 'findLen' failed");
}

// Wraps both ways, which must agree.
std::string wrap(const char* text, int width, int hangingIndent) {
  DString wrapped(text);
  wrapped.wordWrap(width, hangingIndent);
  EXPECT_STREQ(plat::wrapText(text, width, hangingIndent).get(), wrapped.get());
  return wrapped.get();
}

TEST(DString, WordWrap) {
  EXPECT_EQ(wrap("the quick brown fox", 9, 2), "the quick\n  brown\n  fox");
  // A word too wide for a fresh line stays whole.
  EXPECT_EQ(wrap("a\nbbbbbbbbbbbbbbbbbbbb c", 10, 2), "a\nbbbbbbbbbbbbbbbbbbbb\n  c");
  EXPECT_EQ(wrap("  indented   text  ", 20, 0), "  indented   text");
  // Width counts code points: five two-byte letters take five columns.
  const char* letters = "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9 x";
  EXPECT_EQ(wrap(letters, 7, 0), letters);
}

} // namespace
