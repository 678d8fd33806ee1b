#include "rfb/Composite.h"

#include "rfb/Drawing.h"
#include "rfb/ManagedPixelBuffer.h"
#include "rfb/PixelCodec.h"

#include <gtest/gtest.h>

#include <random>

namespace rfb {
namespace {

TEST(CompositeOp, Arithmetic) {
  const struct {
    const char* name;
    CompositeOp op;
    Colour source, dest, expected;
  } rows[] = {
      {"copy", opCopy, {10, 20, 30, 40}, {1, 2, 3, 4}, {10, 20, 30, 40}},
      {"over opaque", opOver, {10, 20, 30, 255}, {1, 2, 3, 4}, {10, 20, 30, 255}},
      {"over transparent", opOver, {0, 0, 0, 0}, {1, 2, 3, 4}, {1, 2, 3, 4}},
      {"over half", opOver, {64, 0, 0, 128}, {200, 100, 50, 255}, {164, 50, 25, 255}},
      {"blend full", opBlend(255), {9, 8, 7, 255}, {1, 2, 3, 255}, {9, 8, 7, 255}},
      {"blend half", opBlendHalf, {200, 0, 0, 255}, {0, 0, 100, 255}, {100, 0, 50, 255}},
      {"premultiply", opPremultiply, {255, 128, 0, 128}, {}, {128, 64, 0, 128}},
      {"unpremultiply", opUnpremultiply, {128, 64, 0, 128}, {}, {255, 128, 0, 128}},
      {"unpremultiply clear", opUnpremultiply, {5, 5, 5, 0}, {1, 1, 1, 1}, {0, 0, 0, 0}},
      {"greyscale white", opGreyscale, {255, 255, 255, 77}, {}, {255, 255, 255, 77}},
      {"greyscale red", opGreyscale, {100, 0, 0, 9}, {}, {30, 30, 30, 9}},
      {"greyscale over", opGreyscaleOver, {255, 0, 0, 255}, {1, 2, 3, 4}, {76, 76, 76, 255}},
  };
  for (const auto& row : rows) {
    Colour dest = row.dest;
    row.op(row.source, dest);
    EXPECT_EQ(dest, row.expected) << row.name;
  }
}

TEST(Composite, CopiesEqualFormatsBitForBitAndConvertsOthers) {
  ManagedPixelBuffer source(pfRgb565(), {0, 0, 5, 4});
  std::mt19937 random(3);
  for (std::int32_t y = 0; y < 4; ++y)
    for (std::int32_t x = 0; x < 5; ++x)
      fillRect(source, {x, y, x + 1, y + 1}, random() & 0xffff);
  ManagedPixelBuffer same(pfRgb565(), {0, 0, 5, 4});
  composite(source, {}, same, same.getRect(), opCopy);
  for (std::int32_t y = 0; y < 4; ++y)
    for (std::int32_t x = 0; x < 5; ++x)
      ASSERT_EQ(same.getPixel({x, y}), source.getPixel({x, y}));

  // 5-bit channels widen to 8 bits: 31 is 255 and 0 stays 0.
  ManagedPixelBuffer narrow(pfRgb555(), {0, 0, 1, 1});
  fillRect(narrow, narrow.getRect(), 31 << 10 | 31);
  ManagedPixelBuffer wide(pfRgb888(), {0, 0, 1, 1});
  composite(narrow, {}, wide, wide.getRect(), opOver);
  EXPECT_EQ(wide.getPixel({0, 0}), 0xff00ffu);
}

TEST(Composite, ClipsToBothBuffersThroughTheOffset) {
  ManagedPixelBuffer source(pfPal8(), {0, 0, 2, 2});
  fillRect(source, source.getRect(), 7);
  fillRect(source, {0, 0, 1, 1}, 9);
  ManagedPixelBuffer dest(pfPal8(), {0, 0, 4, 4});
  composite(source, {3, 3}, dest, {0, 0, 10, 10}, opCopy);
  int written = 0;
  for (std::int32_t y = 0; y < 4; ++y)
    for (std::int32_t x = 0; x < 4; ++x)
      written += dest.getPixel({x, y}) != 0;
  EXPECT_EQ(written, 1);
  EXPECT_EQ(dest.getPixel({3, 3}), 9u);
}

TEST(Composite, PremultipliesInPlace) {
  ManagedPixelBuffer buffer(pfArgb8888(), {0, 0, 2, 1});
  fillRect(buffer, buffer.getRect(), 0x80ff8000);
  fillRect(buffer, {1, 0, 2, 1}, 0x00ffffff);
  composite(buffer, {}, buffer, buffer.getRect(), opPremultiply);
  EXPECT_EQ(buffer.getPixel({0, 0}), 0x80804000u);
  EXPECT_EQ(buffer.getPixel({1, 0}), 0u);
}

// The fast path of 0RGB and the general path of other formats agree.
TEST(FillComposite, TranslucentAndOpaqueColours) {
  const Colour dest{200, 100, 50, 255};
  const struct {
    Colour colour;
    Colour expected;
  } paints[] = {{{64, 0, 0, 128}, {164, 50, 25, 255}}, {{1, 2, 3, 255}, {1, 2, 3, 255}}};
  for (const PixelFormat* pf : {&pfRgb888(), &pfBgr888(), &pfArgb8888()}) {
    for (const auto& paint : paints) {
      ManagedPixelBuffer buffer(*pf, {0, 0, 3, 2});
      fillRect(buffer, buffer.getRect(), packPixel(*pf, nullptr, dest));
      fillComposite(buffer, {1, 1, 9, 9}, paint.colour);
      EXPECT_EQ(unpackPixel(*pf, nullptr, buffer.getPixel({2, 1})), paint.expected);
      EXPECT_EQ(unpackPixel(*pf, nullptr, buffer.getPixel({0, 1})), dest);
    }
  }
}

} // namespace
} // namespace rfb
