#include "plat/NumParse.h"

#include "plat/Exception.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <string>

namespace {

// Parsing must leave errno exactly as the caller had it, on every way out.
constexpr int sentinel = EDOM;

// "value@bytes consumed", or "fail" after checking that failure zeroes the result and leaves
// the cursor where it was.
template <class Result>
std::string attempt(bool (*tryParse)(Result&, const char*&, int) noexcept, const char* text,
                    int base = 10) {
  const char* cursor = text;
  Result result = 99;
  errno = sentinel;
  bool ok = tryParse(result, cursor, base);
  EXPECT_EQ(errno, sentinel) << text;
  if (ok)
    return std::to_string(result) + "@" + std::to_string(cursor - text);
  EXPECT_EQ(result, Result{0}) << text;
  EXPECT_EQ(cursor, text);
  return "fail";
}

TEST(NumParse, TryFormsAtEachWidth) {
  // Whitespace, sign and base prefixes as in strtol; the cursor stops behind the digits.
  EXPECT_EQ(attempt(plat::tryParseInt, "  -17 rest"), "-17@5");
  EXPECT_EQ(attempt(plat::tryParseInt, "0x1F", 0), "31@4");
  EXPECT_EQ(attempt(plat::tryParseInt, "017", 0), "15@3");
  EXPECT_EQ(attempt(plat::tryParseInt, "-2147483648"), "-2147483648@11");
  EXPECT_EQ(attempt(plat::tryParseInt, "2147483648"), "fail");
  EXPECT_EQ(attempt(plat::tryParseInt, "-2147483649"), "fail");
  EXPECT_EQ(attempt(plat::tryParseS64, "9223372036854775807"), "9223372036854775807@19");
  EXPECT_EQ(attempt(plat::tryParseS64, "-9223372036854775809"), "fail");
  EXPECT_EQ(attempt(plat::tryParseU64, "18446744073709551615"), "18446744073709551615@20");
  EXPECT_EQ(attempt(plat::tryParseU64, "18446744073709551616"), "fail");
  EXPECT_EQ(attempt(plat::tryParseUnsigned, "0xFFFFFFFF", 0), "4294967295@10");
  EXPECT_EQ(attempt(plat::tryParseUnsigned, "4294967296"), "fail");
}

// The message of the BadNum that `parse` throws, or "" when it succeeds.
template <class Parse>
std::string failure(Parse parse) {
  errno = sentinel;
  std::string message;
  try {
    parse();
  } catch (const plat::BadNum& e) {
    message = e.what();
  }
  EXPECT_EQ(errno, sentinel);
  return message;
}

TEST(NumParse, ThrowingForms) {
  const char* cursor = " 12,34";
  EXPECT_EQ(plat::parseInt(cursor), 12);
  EXPECT_STREQ(cursor, ",34");
  cursor = "x1";
  EXPECT_EQ(failure([&] { plat::parseS64(cursor); }), "Failed to parse S64 integer");
  EXPECT_STREQ(cursor, "x1");

  EXPECT_EQ(plat::parseU64Full("ffffffffffffffff", 16), UINT64_MAX);
  EXPECT_EQ(failure([] { plat::parseIntFull("12 "); }), "Failed to parse integer");
  EXPECT_EQ(failure([] { plat::parseIntFull(nullptr); }), "Failed to parse integer");
  EXPECT_EQ(failure([] { plat::parseS64Full("1.5"); }), "Failed to parse S64 integer");
  EXPECT_EQ(failure([] { plat::parseU64Full("-5"); }), "Failed to parse U64 integer");
  // strtoul accepts "-1" and silently negates it into the largest value.
  EXPECT_EQ(failure([] { plat::parseUnsignedFull("-1"); }), "Failed to parse integer");

  // Ranges are inclusive; a bad number and an out-of-range one both give the caller's text.
  const char* const levels[][2] = {{"-5", ""}, {"10", ""}, {"-6", "L"}, {"11", "L"}, {"x", "L"}};
  for (const auto& c : levels)
    EXPECT_EQ(failure([&] { plat::parseIntFull(c[0], 10, "L", -5, 10); }), c[1]) << c[0];
  const char* const ports[][2] = {{"1", ""}, {"65535", ""}, {"0", "P"}, {"65536", "P"}};
  for (const auto& c : ports)
    EXPECT_EQ(failure([&] { plat::parseUnsignedFull(c[0], 10, "P", 1, 65535); }), c[1]) << c[0];
}

} // namespace
