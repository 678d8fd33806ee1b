#include "plat/BinToHex.h"

#include "plat/Assertion.h"
#include "plat/MBuf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <numeric>

namespace {

using Bytes = plat::MBuf<unsigned char>;

TEST(BinToHex, RoundTripAndFailures) {
  const unsigned char raw[] = {0x00, 0x01, 0x7f, 0x80, 0xab, 0xff};
  EXPECT_STREQ(plat::binToHex(raw, sizeof raw).get(), "00017f80abff");
  Bytes decoded;
  ASSERT_TRUE(plat::hexToBin("00017F80ABfF", decoded)); // either case in, lower case out
  ASSERT_EQ(decoded.length(), 6);
  EXPECT_EQ(std::memcmp(decoded.data(), raw, sizeof raw), 0);

  // Failure leaves the target as it was; success drops the old contents and the secure flag.
  const unsigned char old[] = {1, 2, 3};
  Bytes target(old, 3, true);
  for (const char* bad : {"abc", "0g", "0 "}) {
    EXPECT_FALSE(plat::hexToBin(bad, target)) << bad;
    EXPECT_EQ(target.length(), 3);
    EXPECT_EQ(target[2], 3);
    EXPECT_TRUE(target.isSecure());
  }
  ASSERT_TRUE(plat::hexToBin("", target));
  EXPECT_EQ(target.length(), 0);
  EXPECT_FALSE(target.isSecure());
  EXPECT_THROW(plat::hexToBinChecked("c0ffe"), plat::Exception);

  unsigned char out[2] = {9, 9};
  EXPECT_TRUE(plat::hexToBytes("DEad-trailing", 1, out));
  EXPECT_FALSE(plat::hexToBytes("01x2", 2, out));
  EXPECT_EQ(out[1], 9); // nothing after the bad digit is written
  int value = 1;
  for (char digit : {'f', 'A', 'g', 'G', '/', ':', '@', '`'})
    EXPECT_EQ(plat::addHexDigit(digit, value), digit == 'f' || digit == 'A') << digit;
  EXPECT_EQ(value, 0x1fa);
  EXPECT_EQ(plat::intToHex(10), 'a');
  EXPECT_THROW(plat::intToHex(16), plat::AssertionFail);
  EXPECT_THROW(plat::intToHex(-1), plat::AssertionFail);
}

TEST(MBuf, ResizeKeepsOrReallocates) {
  // Kept when shrinking to at least half, or while below 128; growing always reallocates.
  const int cases[][3] = {{10, 0, true},    {127, 1, true},    {128, 64, true}, {128, 63, false},
                          {201, 101, true}, {201, 100, false}, {200, 0, false}, {10, 11, false}};
  for (const auto& c : cases) {
    Bytes buffer(c[0]);
    std::iota(buffer.data(), buffer.data() + c[0], static_cast<unsigned char>(1));
    const unsigned char* block = buffer.data();
    buffer.resize(c[1]);
    EXPECT_EQ(buffer.length(), c[1]);
    // A new block is allocated before the old one is freed, so its address differs.
    EXPECT_EQ(buffer.data() == block, c[2] != 0) << c[0] << " -> " << c[1];
    for (std::int32_t i = 0; i < c[1]; ++i)
      ASSERT_EQ(buffer[i], i < c[0] ? i + 1 : 0) << c[0] << " -> " << c[1] << " at " << i;
  }
}

TEST(MBuf, SecureShrinkWipesTheReleasedTail) {
  // A kept block stays allocated, so the elements given back can be inspected.
  for (bool secure : {true, false}) {
    plat::MBuf<std::uint32_t> buffer(4, secure);
    std::fill(buffer.data(), buffer.data() + 4, 0xFFFFFFFFu);
    std::uint32_t* block = buffer.data();
    buffer.resize(2);
    ASSERT_EQ(buffer.data(), block);
    EXPECT_EQ(block[1], 0xFFFFFFFFu);
    EXPECT_EQ(block[3], secure ? 0u : 0xFFFFFFFFu) << secure; // whole elements, not just bytes
    EXPECT_EQ(plat::MBuf<std::uint32_t>(buffer).isSecure(), secure); // copies keep the flag
  }
}

} // namespace
