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
  // Accepted: the NUL (how callers see the end), U+FDF0 and U+10FFFD. Rejected: noncharacters,
  // above the end of Unicode, overlong forms, a surrogate, a stray continuation, the five-byte
  // form, and sequences cut short by `available` or a NUL, after which the cursor stands on the
  // byte that broke the sequence.
  const DecodeCase cases[] = {{"", 4, 0, 1},
                              {"\xF4\x8F\xBF\xBD", -1, 0x10FFFD, 4},
                              {"\xEF\xB7\xB0", -1, 0xFDF0, 3},
                              {"\xEF\xB7\xAF", -1, -1, 3},
                              {"\xEF\xBF\xBE", -1, -1, 3},
                              {"\xF4\x90\x80\x80", -1, -1, 4},
                              {"\xC0\x80", -1, -1, 2},
                              {"\xE0\x80\xAF", -1, -1, 3},
                              {"\xED\xA0\x80", -1, -1, 3},
                              {"\x80", -1, -1, 1},
                              {"\xF8\x88\x80\x80\x80", -1, -1, 1},
                              {"\xE2\x82", 2, -1, 1},
                              {"\xE2\x82\x41", 3, -1, 2},
                              {"\xC3", 4, -1, 1}};
  for (const DecodeCase& c : cases) {
    SCOPED_TRACE(testing::PrintToString(std::string(c.bytes)));
    const char* cursor = c.bytes;
    int available = c.available < 0 ? static_cast<int>(std::strlen(c.bytes)) : c.available;
    EXPECT_EQ(plat::decodeUtf8(cursor, available), c.expected);
    EXPECT_EQ(cursor - c.bytes, c.consumed);
  }
}

TEST(Utf8, EncodeDecodeRoundTrip) {
  for (int codePoint = 1; codePoint <= plat::maxCodePoint;
       codePoint += codePoint < 0x3000 ? 1 : 97) {
    if ((codePoint >= 0xD800 && codePoint <= 0xDFFF) ||
        (codePoint >= 0xFDD0 && codePoint <= 0xFDEF) || (codePoint & 0xFFFE) == 0xFFFE)
      continue;
    char buffer[5] = {};
    char* write = buffer;
    plat::encodeUtf8(codePoint, write);
    ASSERT_EQ(write - buffer, plat::utf8Length(codePoint)) << std::hex << codePoint;
    const char* read = buffer;
    ASSERT_EQ(plat::decodeUtf8(read, static_cast<int>(write - buffer)), codePoint) << codePoint;
    ASSERT_EQ(read, write);
  }
  char buffer[8];
  char* write = buffer;
  EXPECT_THROW(plat::encodeUtf8(plat::maxCodePoint + 1, write), plat::Exception);
  EXPECT_EQ(write, buffer); // nothing written
}

TEST(Utf8, ValidationCountingAndRepair) {
  const char* text = "ab\xE2\x82\xAC\x63";
  EXPECT_TRUE(plat::isValidUtf8(text));
  EXPECT_FALSE(plat::isValidUtf8(text, text + 4));     // a range that cuts a character
  EXPECT_EQ(plat::codePointCount("\xFF\xC0\x80x"), 3); // each invalid sequence counts once

  EXPECT_STREQ(plat::repairUtf8("a\xFF\x62").get(), "a\xEF\xBF\xBD\x62");
  // A cut sequence: its lead byte is replaced, then the orphaned continuation.
  EXPECT_STREQ(plat::repairUtf8("x\xE2\x82").get(), "x\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_STREQ(plat::repairUtf8(text, text + 3).get(), "ab\xEF\xBF\xBD");
  EXPECT_TRUE(plat::repairUtf8(nullptr).isNull());
  // maxBytes stops before the character that would pass it.
  EXPECT_STREQ(plat::repairUtf8(text, nullptr, 4).get(), "ab");
  EXPECT_STREQ(plat::repairUtf8(text, nullptr, 5).get(), "ab\xE2\x82\xAC");
  EXPECT_STREQ(plat::repairUtf8("a\xFF", nullptr, 3).get(), "a");
}

TEST(Utf8, VisibleText) {
  // Each byte of an invalid sequence is shown on its own.
  const char* const cases[][2] = {{"\xC3\xA9 a\\b", "\xC3\xA9 a\\\\b"},
                                  {"\x01\t\x1F\x7F\n", "\\^A\\^I\\^_\\^?\\^J"},
                                  {"\xFF\xC1\x80\xA0\xFE", "\\M^?\\M-A\\M^@\\M^`\\M-~"},
                                  {"\xE2\x82\x41", "\\M-b\\M^BA"}};
  for (const auto& c : cases)
    EXPECT_STREQ(plat::visibleText(c[0]).get(), c[1]) << testing::PrintToString(c[0]);
  EXPECT_STREQ(plat::visibleText("%x%", '%').get(), "%%x%%");
  EXPECT_TRUE(plat::visibleText(nullptr).isNull());
  // The worst case, four bytes out for each byte in, must fit whole.
  EXPECT_EQ(std::strlen(plat::visibleText(std::string(64, '\xFF').c_str()).get()), 64u * 4);
}

TEST(Utf8, Latin1BothWays) {
  EXPECT_STREQ(plat::latin1ToUtf8("a\xE9\x80\xFF").get(), "a\xC3\xA9\xE2\x82\xAC\xC3\xBF");
  EXPECT_STREQ(plat::utf8ToLatin1("a\xC3\xA9\xE2\x82\xAC\xC3\xBF").get(), "a\xE9\x80\xFF");
  // Outside Latin-1, and broken bytes, become '?'.
  EXPECT_STREQ(plat::utf8ToLatin1("\xE2\x80\x94|\xF0\x9F\x98\x80|\xFF").get(), "?|?|?");
  EXPECT_TRUE(plat::utf8ToLatin1(nullptr).isNull());
}

} // namespace
