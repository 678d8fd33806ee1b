#include "plat/NumParse.h"

#include "plat/Exception.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <string>

namespace {

// Parsing must leave errno exactly as the caller had it, on every way out.
constexpr int sentinel = EDOM;

template <class Result>
struct Case {
  const char* text;
  int base;
  bool ok;
  Result value;
  int consumed; // bytes behind the digits, when ok
};

template <class Result, class TryParse>
void checkTry(const Case<Result>& c, TryParse tryParse) {
  SCOPED_TRACE(testing::Message() << '"' << c.text << "\" base " << c.base);
  const char* cursor = c.text;
  Result result = 99;
  errno = sentinel;
  EXPECT_EQ(tryParse(result, cursor, c.base), c.ok);
  EXPECT_EQ(errno, sentinel);
  EXPECT_EQ(result, c.ok ? c.value : Result{0});
  EXPECT_EQ(cursor - c.text, c.ok ? c.consumed : 0);
}

TEST(NumParse, TryParseInt) {
  // Whitespace, sign and prefixes as in strtol; the cursor stops behind the digits.
  const Case<std::int32_t> cases[] = {
      {"  -17 rest", 10, true, -17, 5},
      {"\t\n+9", 10, true, 9, 4},
      {"0x1F", 0, true, 31, 4},
      {"017", 0, true, 15, 3},
      {"12ab", 10, true, 12, 2},
      {"2147483647", 10, true, INT32_MAX, 10},
      {"-2147483648", 10, true, INT32_MIN, 11},
      {"2147483648", 10, false, 0, 0},
      {"-2147483649", 10, false, 0, 0},
      {"99999999999999999999", 10, false, 0, 0},
      {"", 10, false, 0, 0},
      {"abc", 10, false, 0, 0},
      {"12", 1, false, 0, 0},
  };
  for (const auto& c : cases)
    checkTry(c, plat::tryParseInt);
}

TEST(NumParse, TryParseWiderAndUnsigned) {
  const Case<std::int64_t> s64[] = {
      {"9223372036854775807", 10, true, INT64_MAX, 19},
      {"-9223372036854775808", 10, true, INT64_MIN, 20},
      {"9223372036854775808", 10, false, 0, 0},
      {"-9223372036854775809", 10, false, 0, 0},
  };
  for (const auto& c : s64)
    checkTry(c, plat::tryParseS64);

  const Case<std::uint64_t> u64[] = {
      {"18446744073709551615", 10, true, UINT64_MAX, 20},
      {"18446744073709551616", 10, false, 0, 0},
      {" -0", 10, false, 0, 0},
  };
  for (const auto& c : u64)
    checkTry(c, plat::tryParseU64);

  const Case<std::uint32_t> u32[] = {
      {"4294967295", 10, true, UINT32_MAX, 10},
      {"0xFFFFFFFF", 0, true, UINT32_MAX, 10},
      {"4294967296", 10, false, 0, 0},
      {"-1", 10, false, 0, 0},
  };
  for (const auto& c : u32)
    checkTry(c, plat::tryParseUnsigned);
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

TEST(NumParse, ThrowingFormsAdvanceTheCursor) {
  const char* text = " 12,34";
  const char* cursor = text;
  EXPECT_EQ(plat::parseInt(cursor), 12);
  EXPECT_EQ(cursor, text + 3);
  ++cursor;
  EXPECT_EQ(plat::parseUnsigned(cursor, 8), 28u);
  EXPECT_EQ(*cursor, '\0');

  const char* bad = "x1";
  cursor = bad;
  EXPECT_EQ(failure([&] { plat::parseInt(cursor); }), "Failed to parse integer");
  EXPECT_EQ(failure([&] { plat::parseUnsigned(cursor); }), "Failed to parse integer");
  EXPECT_EQ(failure([&] { plat::parseS64(cursor); }), "Failed to parse S64 integer");
  EXPECT_EQ(failure([&] { plat::parseU64(cursor); }), "Failed to parse U64 integer");
  EXPECT_EQ(cursor, bad);

  cursor = nullptr;
  std::int32_t value = 5;
  EXPECT_FALSE(plat::tryParseInt(value, cursor));
  EXPECT_EQ(value, 0);
}

TEST(NumParse, FullFormsTakeTheWholeText) {
  errno = sentinel;
  EXPECT_EQ(plat::parseIntFull(" 0x10", 0), 16);
  EXPECT_EQ(plat::parseS64Full("-9000000000"), -9000000000);
  EXPECT_EQ(plat::parseU64Full("ffffffffffffffff", 16), UINT64_MAX);
  EXPECT_EQ(plat::parseUnsignedFull("300"), 300u);
  EXPECT_EQ(errno, sentinel);

  EXPECT_EQ(failure([] { plat::parseIntFull("12 "); }), "Failed to parse integer");
  EXPECT_EQ(failure([] { plat::parseIntFull(nullptr); }), "Failed to parse integer");
  EXPECT_EQ(failure([] { plat::parseS64Full("1.5"); }), "Failed to parse S64 integer");
  EXPECT_EQ(failure([] { plat::parseU64Full("-5"); }), "Failed to parse U64 integer");
  EXPECT_EQ(failure([] { plat::parseUnsignedFull("7x"); }), "Failed to parse integer");
  // strtoul accepts "-1" and silently negates it into the largest value.
  EXPECT_EQ(failure([] { plat::parseUnsignedFull("-1"); }), "Failed to parse integer");
}

TEST(NumParse, FullFormsCheckTheRangeInclusively) {
  for (const char* text : {"-5", "10", "-6", "11", "abc"}) {
    bool inside = std::string(text) == "-5" || std::string(text) == "10";
    EXPECT_EQ(failure([&] { plat::parseIntFull(text, 10, "Bad level", -5, 10); }),
              inside ? "" : "Bad level")
        << text;
  }
  for (const char* text : {"1", "65535", "0", "65536", ""}) {
    bool inside = std::string(text) == "1" || std::string(text) == "65535";
    EXPECT_EQ(failure([&] { plat::parseUnsignedFull(text, 10, "Bad port", 1, 65535); }),
              inside ? "" : "Bad port")
        << text;
  }
}

} // namespace
