#include "plat/String.h"

#include "plat/StringUtils.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

using plat::String;

TEST(String, NullIsDistinctFromEmptyAndOrdersFirst) {
  String null;
  String empty("");
  EXPECT_NE(null, empty);
  EXPECT_TRUE(null < empty);
  EXPECT_TRUE(empty < String("a"));
  EXPECT_TRUE(null == static_cast<const char*>(nullptr));
  EXPECT_FALSE(empty == static_cast<const char*>(nullptr));
  EXPECT_EQ(plat::compare(nullptr, nullptr), 0);
  EXPECT_LT(plat::compare(nullptr, ""), 0);
  EXPECT_GT(plat::compare("", nullptr), 0);

  String copy(empty);
  EXPECT_EQ(copy, "");
  EXPECT_NE(copy.get(), empty.get());
  EXPECT_TRUE(String(null).isNull());
  const char* block = copy.get();
  String moved(std::move(copy));
  EXPECT_EQ(moved.get(), block);
  EXPECT_TRUE(copy.isNull()); // NOLINT(bugprone-use-after-move)
}

TEST(String, BoundedDuplicateLengthAndCopy) {
  EXPECT_TRUE(plat::strDup(nullptr, 3).isNull());
  // A zero bound still gives a string, not null.
  String none = plat::strDup("abc", 0);
  ASSERT_FALSE(none.isNull());
  EXPECT_STREQ(none.get(), "");
  EXPECT_STREQ(plat::strDup("abc", 2).get(), "ab");
  EXPECT_STREQ(plat::strDup("abc", 10).get(), "abc");
  EXPECT_STREQ(plat::strDup("abc", -1).get(), "abc");

  EXPECT_EQ(plat::strLenMax("abcdef", 4), 4u);
  EXPECT_EQ(plat::strLenMax("ab", 4), 2u);
  EXPECT_EQ(plat::strLenMax("abcdef", -1), 6u);

  char dest[4] = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(plat::strCopy(dest, "abcdef", sizeof dest), 6u);
  EXPECT_STREQ(dest, "abc");
  EXPECT_EQ(plat::strCopy(dest, nullptr, sizeof dest), 0u);
  EXPECT_STREQ(dest, "");
}

TEST(StringUtils, PrefixAndSuffixRules) {
  struct Case {
    const char* text;
    const char* affix;
    bool starts, startsNoCase, ends, endsNoCase;
  };
  const Case cases[] = {
      {"Hello", "He", true, true, false, false},       {"Hello", "he", false, true, false, false},
      {"Hello", "LLO", false, false, false, true},     {"Hello", "llo", false, false, true, true},
      {"Hello", "Hello!", false, false, false, false}, {"Hello", "", true, true, true, true},
      {"Hello", nullptr, true, true, true, true},      {nullptr, nullptr, true, true, true, true},
      {nullptr, "", true, true, true, true},           {nullptr, "a", false, false, false, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.text ? c.text : "<null>") + " / " + (c.affix ? c.affix : "<null>"));
    EXPECT_EQ(plat::startsWith(c.text, c.affix), c.starts);
    EXPECT_EQ(plat::startsWithNoCase(c.text, c.affix), c.startsNoCase);
    EXPECT_EQ(plat::endsWith(c.text, c.affix), c.ends);
    EXPECT_EQ(plat::endsWithNoCase(c.text, c.affix), c.endsNoCase);
  }

  const char* text = "The Quick Fox";
  EXPECT_EQ(plat::findNoCase(text, "quick"), text + 4);
  EXPECT_EQ(plat::findNoCase(text, "FOX"), text + 10);
  EXPECT_EQ(plat::findNoCase(text, nullptr), text);
  EXPECT_EQ(plat::findNoCase(text, "foxes"), nullptr);
  EXPECT_EQ(plat::findNoCase(nullptr, "a"), nullptr);
}

TEST(StringUtils, CharactersAndInPlaceTransforms) {
  const char* text = "ab,cd";
  EXPECT_TRUE(plat::containsChar(text, nullptr, ','));
  EXPECT_FALSE(plat::containsChar(text, text + 2, ','));
  EXPECT_FALSE(plat::containsChar(nullptr, nullptr, ','));
  // The scan stops at the NUL even when `end` lies beyond it.
  const char embedded[] = "ab\0,";
  EXPECT_FALSE(plat::containsChar(embedded, embedded + 4, ','));

  EXPECT_FALSE(plat::hasNonSpace(nullptr));
  EXPECT_FALSE(plat::hasNonSpace(" \t\r\n"));
  // Vertical tab and form feed are not whitespace here.
  EXPECT_TRUE(plat::hasNonSpace(" \v"));
  EXPECT_TRUE(plat::hasNonSpace("\f "));

  char ascii[] = "MiXeD 1\xC3\x89z";
  plat::lowerAscii(ascii);
  EXPECT_STREQ(ascii, "mixed 1\xC3\x89z");
  plat::upperAscii(ascii);
  EXPECT_STREQ(ascii, "MIXED 1\xC3\x89Z");
  char locale[] = "AbC";
  plat::lowerLocale(locale);
  EXPECT_STREQ(locale, "abc");
  plat::upperLocale(locale);
  EXPECT_STREQ(locale, "ABC");

  char removed[] = "a-b_c-d";
  plat::removeChars(removed, "-_");
  EXPECT_STREQ(removed, "abcd");
  char padded[] = " \t\v x \f\r\n ";
  plat::trimLeft(padded);
  EXPECT_STREQ(padded, "\v x \f\r\n ");
  plat::trimRight(padded);
  EXPECT_STREQ(padded, "\v x \f");
}

TEST(StringUtils, InsertEveryAndHash) {
  EXPECT_STREQ(plat::insertEvery("abcdefg", '-', 3).get(), "abc-def-g");
  EXPECT_STREQ(plat::insertEvery("abc", '-', 0).get(), "abc");
  EXPECT_TRUE(plat::insertEvery(nullptr, '-', 2).isNull());

  EXPECT_EQ(plat::hash64(nullptr), 0xcbf29ce484222325ULL);
  EXPECT_EQ(plat::hash64("a"), 0xaf63dc4c8601ec8cULL);
  EXPECT_EQ(plat::hash64("foobar"), 0x85944171f73967e8ULL);
  // Bytes above 0x7F must enter unsigned.
  EXPECT_EQ(plat::hash64("\xC3\xA9"), 0x0ac21707b7181e01ULL);
}

using Tokens = std::vector<std::string>;

// Runs a tokeniser to the end and collects the tokens.
template <class Next>
Tokens tokens(const char* text, Next next) {
  std::vector<char> buffer(text, text + std::strlen(text) + 1);
  char* cursor = buffer.data();
  Tokens result;
  for (char* token; result.size() < 20 && (token = next(cursor)) != nullptr;)
    result.emplace_back(token);
  EXPECT_EQ(cursor, nullptr);
  EXPECT_EQ(next(cursor), nullptr); // a call after the end stays at the end
  return result;
}

TEST(StringUtils, Tokenisers) {
  auto plain = [](char*& cursor) { return plat::nextToken(cursor, ','); };
  auto skipping = [](char*& cursor) { return plat::nextToken(cursor, ',', true); };
  EXPECT_EQ(tokens(",a,,b,", plain), (Tokens{"", "a", "", "b", ""}));
  EXPECT_EQ(tokens("", plain), (Tokens{""}));
  EXPECT_EQ(tokens(",,a,,b,,", skipping), (Tokens{"a", "b"}));
  EXPECT_EQ(tokens(",,,", skipping), Tokens{});
  char trailing[] = "a,,";
  char* rest = trailing;
  EXPECT_STREQ(plat::nextToken(rest, ',', true), "a");
  EXPECT_EQ(rest, nullptr); // only delimiters were left

  auto anySkipping = [](char*& at) { return plat::nextTokenAny(at, " \t", nullptr, true); };
  EXPECT_EQ(tokens("\t a \t b  ", anySkipping), (Tokens{"a", "b"}));
  auto string = [](char*& cursor) { return plat::nextTokenStr(cursor, "::"); };
  auto stringSkipping = [](char*& cursor) { return plat::nextTokenStr(cursor, "::", true); };
  EXPECT_EQ(tokens("a::b:c::", string), (Tokens{"a", "b:c", ""}));
  EXPECT_EQ(tokens("::::a::::b::", stringSkipping), (Tokens{"a", "b"}));

  // The cursor stands behind the delimiter; the delimiter found is reported.
  char text[] = "a=b;;c";
  char* cursor = text;
  char found = 'x';
  EXPECT_STREQ(plat::nextTokenAny(cursor, "=;", &found, false), "a");
  EXPECT_EQ(cursor, text + 2);
  EXPECT_EQ(found, '=');
  EXPECT_STREQ(plat::nextTokenAny(cursor, "=;", &found, false), "b");
  EXPECT_EQ(found, ';');
  EXPECT_STREQ(plat::nextTokenAny(cursor, "=;", &found, false), "");
  EXPECT_STREQ(plat::nextTokenAny(cursor, "=;", &found, false), "c");
  EXPECT_EQ(found, '\0');
  EXPECT_EQ(cursor, nullptr);
}

TEST(StringUtils, SplitLastAndSplitToSet) {
  char path[] = "dir/sub/file";
  char* cursor = path;
  EXPECT_STREQ(plat::splitLast(cursor, '/'), "file");
  EXPECT_STREQ(cursor, "dir/sub");
  EXPECT_STREQ(plat::splitLast(cursor, '/'), "sub");
  EXPECT_STREQ(cursor, "dir");
  EXPECT_STREQ(plat::splitLast(cursor, '/'), "dir");
  EXPECT_EQ(cursor, nullptr);
  EXPECT_EQ(plat::splitLast(cursor, '/'), nullptr);

  std::set<String> expected;
  for (const char* piece : {"a", "b", "", "c"})
    expected.insert(String(piece));
  EXPECT_EQ(plat::splitToSet("b,a,b,,c", ','), expected);
  EXPECT_EQ(plat::splitToSet("", ','), std::set<String>{String("")});
  EXPECT_TRUE(plat::splitToSet(nullptr, ',').empty());
}

} // namespace
