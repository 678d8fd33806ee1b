#include "plat/MBuf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace {

using Bytes = plat::MBuf<unsigned char>;

Bytes counting(std::int32_t length, bool secure = false) {
  Bytes buffer(length, secure);
  std::iota(buffer.data(), buffer.data() + length, static_cast<unsigned char>(1));
  return buffer;
}

TEST(MBuf, ResizeKeepsOrReallocates) {
  struct Case {
    std::int32_t from;
    std::int32_t to;
    bool kept;
  };
  const Case cases[] = {
      {10, 10, true},    {10, 0, true},   // small blocks are always kept when shrinking
      {127, 1, true},    {128, 64, true}, // at least half
      {128, 63, false},  {200, 100, true}, {200, 99, false}, {201, 101, true},
      {201, 100, false}, {200, 0, false},  {10, 11, false}, // growing always reallocates
      {0, 4, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.from << " -> " << c.to);
    Bytes buffer = counting(c.from);
    const unsigned char* block = buffer.data();
    buffer.resize(c.to);
    EXPECT_EQ(buffer.length(), c.to);
    if (c.kept) {
      EXPECT_EQ(buffer.data(), block);
    } else {
      // The new block is allocated before the old one is freed, so its address differs.
      EXPECT_NE(buffer.data(), block);
    }
    // The elements that remain keep their values; new ones start at zero.
    for (std::int32_t i = 0; i < c.to; ++i)
      ASSERT_EQ(buffer[i], i < c.from ? static_cast<unsigned char>(i + 1) : 0) << i;
  }
}

TEST(MBuf, SecureShrinkWipesTheReleasedTail) {
  // A kept block stays allocated, so the bytes given back can be inspected.
  Bytes secret = counting(8, true);
  unsigned char* block = secret.data();
  secret.resize(5);
  ASSERT_EQ(secret.data(), block);
  EXPECT_EQ(block[4], 5);
  for (int i = 5; i < 8; ++i)
    EXPECT_EQ(block[i], 0) << i;

  Bytes plain = counting(8);
  block = plain.data();
  plain.resize(5);
  ASSERT_EQ(plain.data(), block);
  EXPECT_EQ(block[7], 8); // not secure: left alone

  plat::MBuf<std::uint32_t> wide(4, true);
  std::fill(wide.data(), wide.data() + 4, 0xFFFFFFFFu);
  wide.resize(2);
  EXPECT_EQ(wide.data()[1], 0xFFFFFFFFu);
  EXPECT_EQ(wide.data()[2], 0u); // whole elements, not just bytes
  EXPECT_EQ(wide.data()[3], 0u);
}

TEST(MBuf, MoveEmptiesTheSourceAndCopyDuplicates) {
  Bytes source = counting(6, true);
  const unsigned char* block = source.data();
  Bytes moved(std::move(source));
  EXPECT_EQ(moved.data(), block);
  EXPECT_EQ(moved.length(), 6);
  EXPECT_TRUE(moved.isSecure());
  EXPECT_EQ(source.length(), 0); // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(source.data(), nullptr);

  Bytes copy(moved);
  EXPECT_NE(copy.data(), block);
  EXPECT_EQ(copy[5], 6);
  EXPECT_TRUE(copy.isSecure());

  Bytes assigned = counting(2);
  assigned = std::move(moved);
  EXPECT_EQ(assigned.data(), block);
  EXPECT_EQ(assigned.length(), 6);
  EXPECT_TRUE(assigned.isSecure());
  EXPECT_EQ(moved.length(), 0); // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(moved.data(), nullptr);
}

} // namespace
