#include "plat/utf8.h"

#include "plat/Exception.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

struct DecodeCase {
  const char* bytes;
  int available; // -1: the length of `bytes`
  int expected;
  int consumed; // where the cursor stands afterwards
};

TEST(Utf8, Decoder) {
  const DecodeCase cases[] = {
      {"A", -1, 'A', 1},
      {"", 4, 0, 1}, // the NUL is how callers see the end
      {"\xC3\xA9", -1, 0xE9, 2},
      {"\xE2\x82\xAC", -1, 0x20AC, 3},
      {"\xF0\x9F\x98\x80", -1, 0x1F600, 4},
      {"\xF4\x8F\xBF\xBD", -1, 0x10FFFD, 4},
      {"\xEF\xB7\xAF\xEF\xB7\xB0", -1, -1, 3}, // U+FDEF
      {"\xEF\xB7\xB0", -1, 0xFDF0, 3},
      {"\xEF\xBF\xBE", -1, -1, 3},         // U+FFFE
      {"\xEF\xBF\xBF", -1, -1, 3},         // U+FFFF
      {"\xF0\x9F\xBF\xBE", -1, -1, 4},     // U+1FFFE
      {"\xF4\x8F\xBF\xBF", -1, -1, 4},     // U+10FFFF
      {"\xF4\x90\x80\x80", -1, -1, 4},     // above the end of Unicode
      {"\xC0\x80", -1, -1, 2},             // overlong NUL
      {"\xE0\x80\xAF", -1, -1, 3},         // overlong '/'
      {"\xED\xA0\x80", -1, -1, 3},         // surrogate
      {"\x80", -1, -1, 1},                 // stray continuation: lead stays consumed
      {"\xF8\x88\x80\x80\x80", -1, -1, 1}, // five-byte form
      {"\xE2\x82", 2, -1, 1},              // truncated by `available`
      {"\xE2\x82\x41", 3, -1, 2},          // cursor left on the offending 'A'
      {"\xC3", 4, -1, 1},                  // NUL where a continuation belongs
      {"A", 0, -1, 0},
  };
  for (const DecodeCase& c : cases) {
    SCOPED_TRACE(testing::PrintToString(std::string(c.bytes)));
    const char* cursor = c.bytes;
    int available = c.available < 0 ? static_cast<int>(std::strlen(c.bytes)) : c.available;
    EXPECT_EQ(plat::decodeUtf8(cursor, available), c.expected);
    EXPECT_EQ(cursor - c.bytes, c.consumed);
  }
}

TEST(Utf8, Utf8Length) {
  const int cases[][2] = {
      {0, 1},       {0x7F, 1},     {0x80, 2},     {0x7FF, 2},     {0x800, 3},     {0xFFFF, 3},
      {0x10000, 4}, {0x10FFFF, 4}, {0x110000, 4}, {0x10FFFFF, 4}, {0x1100000, 0}, {0x7FFFFFFF, 0},
  };
  for (const auto& c : cases)
    EXPECT_EQ(plat::utf8Length(c[0]), c[1]) << std::hex << c[0];
}

TEST(Utf8, EncodeDecodeRoundTrip) {
  int checked = 0;
  for (int codePoint = 1; codePoint <= plat::maxCodePoint;
       codePoint += codePoint < 0x3000 ? 1 : 97) {
    bool excluded = (codePoint >= 0xD800 && codePoint <= 0xDFFF) ||
                    (codePoint >= 0xFDD0 && codePoint <= 0xFDEF) || (codePoint & 0xFFFE) == 0xFFFE;
    if (excluded)
      continue;
    char buffer[5] = {};
    char* write = buffer;
    plat::encodeUtf8(codePoint, write);
    ASSERT_EQ(write - buffer, plat::utf8Length(codePoint)) << std::hex << codePoint;
    const char* read = buffer;
    ASSERT_EQ(plat::decodeUtf8(read, static_cast<int>(write - buffer)), codePoint)
        << std::hex << codePoint;
    ASSERT_EQ(read, write);
    ++checked;
  }
  EXPECT_GT(checked, 20000);
  // Above the end of Unicode nothing is written.
  char buffer[8];
  char* write = buffer;
  try {
    plat::encodeUtf8(plat::maxCodePoint + 1, write);
    FAIL() << "no exception";
  } catch (const plat::Exception& e) {
    EXPECT_STREQ(e.what(), "Unicode out of range");
  }
  EXPECT_EQ(write, buffer);
}

TEST(Utf8, ValidationAndCounting) {
  EXPECT_TRUE(plat::isValidUtf8("plain \xC3\xA9\xF0\x9F\x98\x80"));
  EXPECT_FALSE(plat::isValidUtf8("a\xC0\x80"));
  EXPECT_FALSE(plat::isValidUtf8("a\xE2\x82"));

  const char* text = "ab\xE2\x82\xAC";
  EXPECT_TRUE(plat::isValidUtf8(text, text));
  // A bounded range that cuts a character in half is invalid.
  EXPECT_FALSE(plat::isValidUtf8(text, text + 4));
  EXPECT_TRUE(plat::isValidUtf8(text, text + 2));

  EXPECT_EQ(plat::codePointCount(text), 3);
  EXPECT_EQ(plat::codePointCount(text, text + 2), 2);
  // Each invalid sequence counts once.
  EXPECT_EQ(plat::codePointCount("\xFF\xC0\x80x"), 3);
}

TEST(Utf8, RepairUtf8) {
  EXPECT_STREQ(plat::repairUtf8("ok \xC3\xA9").get(), "ok \xC3\xA9");
  EXPECT_STREQ(plat::repairUtf8("a\xFF\x62").get(), "a\xEF\xBF\xBD\x62");
  EXPECT_STREQ(plat::repairUtf8("\xC0\x80").get(), "\xEF\xBF\xBD");
  // A sequence cut short by the end keeps only its lead byte; the orphaned
  // continuation byte is then invalid on its own.
  EXPECT_STREQ(plat::repairUtf8("x\xE2\x82").get(), "x\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_TRUE(plat::repairUtf8(nullptr).isNull());

  // maxBytes stops before the character that would pass it, whole characters only.
  const char* text = "ab\xE2\x82\xAC\x63";
  EXPECT_STREQ(plat::repairUtf8(text, nullptr, 4).get(), "ab");
  EXPECT_STREQ(plat::repairUtf8(text, nullptr, 5).get(), "ab\xE2\x82\xAC");
  EXPECT_STREQ(plat::repairUtf8(text, nullptr, 0).get(), "");
  EXPECT_STREQ(plat::repairUtf8("a\xFF", nullptr, 3).get(), "a");
  EXPECT_STREQ(plat::repairUtf8(text, text + 3).get(), "ab\xEF\xBF\xBD");
}

struct VisibleCase {
  const char* text;
  char escape;
  const char* expected;
};

TEST(Utf8, VisibleText) {
  const VisibleCase cases[] = {
      {"plain \xC3\xA9", '\\', "plain \xC3\xA9"},
      {"a\\b", '\\', "a\\\\b"},
      {"tab\there\n", '\\', "tab\\^Ihere\\^J"},
      {"\x01\x1F\x7F", '\\', "\\^A\\^_\\^?"},
      {"%x%", '%', "%%x%%"},
      {"\xFF", '\\', "\\M^?"},
      {"\xC1", '\\', "\\M-A"},
      {"\x80", '\\', "\\M^@"},
      {"\xA0", '\\', "\\M^`"},
      {"\xFE", '\\', "\\M-~"},
      // Each byte of an invalid sequence is shown on its own.
      {"\xC0\x80", '\\', "\\M-@\\M^@"},
      {"\xE2\x82\x41", '\\', "\\M-b\\M^BA"},
  };
  for (const VisibleCase& c : cases) {
    SCOPED_TRACE(testing::PrintToString(std::string(c.text)));
    EXPECT_STREQ(plat::visibleText(c.text, c.escape).get(), c.expected);
  }
  EXPECT_TRUE(plat::visibleText(nullptr).isNull());

  // The worst case fills the whole output allowance.
  std::string expected;
  for (int i = 0; i < 64; ++i)
    expected += "\\M^?";
  EXPECT_EQ(plat::visibleText(std::string(64, '\xFF').c_str()).get(), expected);
}

TEST(Utf8, Latin1) {
  EXPECT_STREQ(plat::latin1ToUtf8("a\xE9\x80\xFF").get(), "a\xC3\xA9\xE2\x82\xAC\xC3\xBF");

  EXPECT_STREQ(plat::utf8ToLatin1("a\xC3\xA9\xE2\x82\xAC\xC3\xBF").get(), "a\xE9\x80\xFF");
  // Outside Latin-1, and broken bytes, become '?'.
  EXPECT_STREQ(plat::utf8ToLatin1("\xE2\x80\x94|\xF0\x9F\x98\x80|\xFF").get(), "?|?|?");
  EXPECT_TRUE(plat::utf8ToLatin1(nullptr).isNull());
}

} // namespace
