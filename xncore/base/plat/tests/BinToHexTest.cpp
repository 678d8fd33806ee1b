#include "plat/BinToHex.h"

#include "plat/Assertion.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using Bytes = plat::MBuf<unsigned char>;

TEST(BinToHex, RoundTripInEitherCase) {
  const unsigned char raw[] = {0x00, 0x01, 0x7f, 0x80, 0xab, 0xff};
  EXPECT_STREQ(plat::binToHex(raw, sizeof raw).get(), "00017f80abff");
  for (const char* hex : {"00017f80abff", "00017F80ABfF"}) {
    Bytes decoded;
    ASSERT_TRUE(plat::hexToBin(hex, decoded)) << hex;
    ASSERT_EQ(decoded.length(), 6);
    EXPECT_EQ(std::memcmp(decoded.data(), raw, sizeof raw), 0) << hex;
    EXPECT_STREQ(plat::binToHex(decoded).get(), "00017f80abff");
  }
  EXPECT_STREQ(plat::binToHex(Bytes()).get(), "");
}

TEST(BinToHex, HexToBinReplacesOnlyOnSuccess) {
  const unsigned char old[] = {1, 2, 3};
  for (const char* bad : {"abc", "0g", "zz00", "0 "}) {
    Bytes target(old, 3, true);
    const unsigned char* block = target.data();
    EXPECT_FALSE(plat::hexToBin(bad, target)) << bad;
    EXPECT_EQ(target.data(), block);
    EXPECT_EQ(target.length(), 3);
    EXPECT_TRUE(target.isSecure());
  }

  // Success gives up the old contents and the secure flag with them.
  Bytes target(old, 3, true);
  ASSERT_TRUE(plat::hexToBin("", target));
  EXPECT_EQ(target.length(), 0);
  EXPECT_FALSE(target.isSecure());
  Bytes other(4, true);
  ASSERT_TRUE(plat::hexToBin("0a0B", other));
  ASSERT_EQ(other.length(), 2);
  EXPECT_EQ(other[1], 0x0b);
  EXPECT_FALSE(other.isSecure());

  EXPECT_EQ(plat::hexToBinChecked("c0ffee")[2], 0xee);
  try {
    plat::hexToBinChecked("c0ffe");
    FAIL() << "no exception";
  } catch (const plat::Exception& e) {
    EXPECT_STREQ(e.what(), "Bad hex string");
  }
}

TEST(BinToHex, HexToBytes) {
  unsigned char out[4] = {9, 9, 9, 9};
  EXPECT_TRUE(plat::hexToBytes("DEADbeef-trailing", 4, out));
  EXPECT_EQ(out[0], 0xde);
  EXPECT_EQ(out[3], 0xef);

  // Stops at the first bad digit; bytes already read stay written.
  unsigned char partial[3] = {9, 9, 9};
  EXPECT_FALSE(plat::hexToBytes("01x203", 3, partial));
  EXPECT_EQ(partial[0], 0x01);
  EXPECT_EQ(partial[2], 9);
  EXPECT_FALSE(plat::hexToBytes("0", 1, partial));
  EXPECT_TRUE(plat::hexToBytes(nullptr, 0, nullptr));
}

TEST(BinToHex, Digits) {
  int value = 1;
  EXPECT_TRUE(plat::addHexDigit('f', value));
  EXPECT_TRUE(plat::addHexDigit('A', value));
  EXPECT_TRUE(plat::addHexDigit('9', value));
  EXPECT_EQ(value, 0x1fa9);
  for (char bad : {'g', 'G', '/', ':', '@', '`', '\0'}) {
    EXPECT_FALSE(plat::addHexDigit(bad, value)) << static_cast<int>(bad);
    EXPECT_EQ(value, 0x1fa9);
  }

  EXPECT_EQ(plat::intToHex(9), '9');
  EXPECT_EQ(plat::intToHex(10), 'a');
  EXPECT_EQ(plat::intToHex(15), 'f');
  for (int bad : {16, -1}) {
    try {
      plat::intToHex(bad);
      FAIL() << bad;
    } catch (const plat::AssertionFail& e) {
      EXPECT_STREQ(e.expression(), "i >= 0 && i <= 15");
    }
  }
}

} // namespace
