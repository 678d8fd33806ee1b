#include "rfb/PixelFormat.h"

#include "rfb/PixelCodec.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace rfb {
namespace {

std::string printed(const PixelFormat& pf) {
  char text[PixelFormat::printSize];
  pf.print(text);
  return text;
}

TEST(PixelFormat, ParseNamesAndRefusals) {
  struct Row {
    const char* text;
    int bpp, depth, rMax, gMax, bMax, rShift, gShift, bShift;
  };
  const Row accepted[] = {
      {"rgb565", 16, 16, 31, 63, 31, 11, 5, 0},    {"RGB888", 32, 24, 255, 255, 255, 16, 8, 0},
      {"bgr233", 8, 8, 7, 7, 3, 0, 3, 6},          {"rgb111", 8, 3, 1, 1, 1, 2, 1, 0},
      {"bgr999", 32, 27, 511, 511, 511, 0, 9, 18},
  };
  for (const Row& row : accepted) {
    SCOPED_TRACE(row.text);
    PixelFormat pf;
    ASSERT_TRUE(pf.parse(row.text));
    EXPECT_TRUE(pf.trueColour);
    EXPECT_EQ(pf, PixelFormat(row.bpp, row.depth, true, row.rMax, row.gMax, row.bMax, 0, row.rShift,
                              row.gShift, row.bShift, 0));
  }
  PixelFormat pal;
  ASSERT_TRUE(pal.parse("Pal4x"));
  EXPECT_EQ(pal.depth, 4);
  EXPECT_EQ(pal.bpp, 8);
  EXPECT_FALSE(pal.trueColour);

  for (const char* refused : {"rgb56", "rgb5650", "rgb065", "pal9", "pal0", "xyz888", ""}) {
    PixelFormat pf = pfRgb565();
    EXPECT_FALSE(pf.parse(refused)) << refused;
    EXPECT_EQ(pf, pfRgb565()) << refused;
  }
}

TEST(PixelFormat, Print) {
  PixelFormat gapped = pfRgb565();
  gapped.redShift = 12;
  gapped.depth = 16;
  PixelFormat big = pfArgb8888();
  big.bigEndian = 1;
  const struct {
    PixelFormat pf;
    const char* text;
  } rows[] = {
      {pfRgb888(), "depth 24 (32 bpp) little-endian rgb888"},
      {pfPal8(), "depth 8 (8 bpp) colour-map"},
      {pfBgr888(), "depth 24 (32 bpp) little-endian bgr888"},
      {pfRgb222(), "depth 6 (8 bpp) rgb222"},
      {pfArgb8888(), "depth 32 (32 bpp) little-endian argb8888"},
      {big, "depth 32 (32 bpp) big-endian argb8888"},
      {PixelFormat(32, 32, true, 255, 255, 255, 255, 0, 8, 16, 24),
       "depth 32 (32 bpp) little-endian abgr8888"},
      {PixelFormat(32, 32, true, 255, 255, 255, 255, 24, 16, 8, 0),
       "depth 32 (32 bpp) little-endian rgba8888"},
      {gapped, "depth 16 (16 bpp) little-endian rgb max 31,63,31 shift 12,5,0"},
      {PixelFormat(16, 16, true, 15, 15, 15, 15, 0, 5, 10, 15),
       "depth 16 (16 bpp) little-endian rgb max 15,15,15 shift 0,5,10 alpha max 15 shift 15"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(printed(row.pf), row.text);
}

TEST(PixelFormat, EqualityValidityAndByteOrder) {
  PixelFormat mapA = pfPal8(), mapB = pfPal8();
  mapB.redMax = 99;
  mapB.bigEndian = 1;
  EXPECT_EQ(mapA, mapB);
  PixelFormat small = pfRgb222();
  small.bigEndian = 1;
  EXPECT_EQ(small, pfRgb222());
  PixelFormat swapped = pfRgb565();
  swapped.bigEndian = 1;
  EXPECT_NE(swapped, pfRgb565());
  EXPECT_NE(pfRgb888(), pfBgr888());

  EXPECT_TRUE(pfArgb8888().isValid());
  PixelFormat tooDeep = pfPal8();
  tooDeep.bpp = 16;
  tooDeep.depth = 9;
  PixelFormat overflow = pfRgb565();
  overflow.redShift = 12;
  PixelFormat odd = pfRgb888();
  odd.bpp = 12;
  for (const PixelFormat& bad : {tooDeep, overflow, odd})
    EXPECT_FALSE(bad.isValid()) << printed(bad);

  // Big-endian xRGB in 32 bits is little-endian BGRx.
  PixelFormat be = pfRgb888();
  be.bigEndian = 1;
  ASSERT_TRUE(be.makeLittleEndian());
  EXPECT_EQ(be, PixelFormat(32, 24, true, 255, 255, 255, 0, 8, 16, 24, 0));
  PixelFormat unaligned = pfRgb565();
  unaligned.bigEndian = 1;
  EXPECT_FALSE(unaligned.makeLittleEndian());
  EXPECT_TRUE(unaligned.bigEndian);

  PixelFormat masks = pfArgb8888();
  masks.depth = 1;
  masks.setDepthFromMasks();
  EXPECT_EQ(masks.depth, 32);
}

TEST(PixelFormat, WireFormDropsAlphaThatDepthDoesNotCount) {
  std::uint8_t wire[PixelFormat::wireSize];
  pfArgb8888().write(wire);
  const std::uint8_t expected[] = {32, 32, 0, 1, 0, 255, 0, 255, 0, 255, 16, 8, 0, 24, 0, 255};
  EXPECT_EQ(0, std::memcmp(wire, expected, sizeof wire));
  PixelFormat back;
  back.read(wire);
  EXPECT_EQ(back, pfArgb8888());

  wire[1] = 24; // depth without alpha's bits
  wire[2] = 7;  // any non-zero byte order flag reads as 1
  back.read(wire);
  EXPECT_EQ(back.alphaMax, 0);
  EXPECT_EQ(back.alphaShift, 0);
  EXPECT_EQ(back.bigEndian, 1);
}

// Each channel's full and lowest value, alone, through pack and unpack.
TEST(PixelCodec, ChannelsAtTheirEdges) {
  const struct {
    const PixelFormat& pf;
    std::uint32_t red, green, blue, alpha; // the value of each channel at its maximum
  } rows[] = {
      {pfRgb565(), 0xf800, 0x07e0, 0x001f, 0},
      {pfRgb555(), 0x7c00, 0x03e0, 0x001f, 0},
      {pfRgb222(), 0x30, 0x0c, 0x03, 0},
      {pfRgb111(), 0x4, 0x2, 0x1, 0},
      {pfRgb888(), 0xff0000, 0xff00, 0xff, 0},
      {pfBgr888(), 0xff, 0xff00, 0xff0000, 0},
      {pfArgb8888(), 0xff0000, 0xff00, 0xff, 0xff000000},
      {pfAbgr8888(), 0xff, 0xff00, 0xff0000, 0xff000000},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(printed(row.pf));
    const std::uint32_t opaque = row.alpha;
    EXPECT_EQ(unpackPixel(row.pf, nullptr, row.red | opaque), (Colour{255, 0, 0, 255}));
    EXPECT_EQ(unpackPixel(row.pf, nullptr, row.green | opaque), (Colour{0, 255, 0, 255}));
    EXPECT_EQ(unpackPixel(row.pf, nullptr, row.blue | opaque), (Colour{0, 0, 255, 255}));
    EXPECT_EQ(packPixel(row.pf, nullptr, {255, 0, 0, 255}), row.red | opaque);
    EXPECT_EQ(packPixel(row.pf, nullptr, {0, 255, 0, 255}), row.green | opaque);
    EXPECT_EQ(packPixel(row.pf, nullptr, {0, 0, 255, 255}), row.blue | opaque);
    EXPECT_EQ(packPixel(row.pf, nullptr, {0, 0, 0, 0}), 0u);
    // Without alpha in the format alpha reads as opaque.
    EXPECT_EQ(unpackPixel(row.pf, nullptr, 0).a, row.alpha ? 0 : 255);
  }
  // Rescaling rounds: a 5-bit 16 is 132 (16 * 255 / 31 = 131.6), and 132 packs back to 16.
  EXPECT_EQ(unpackPixel(pfRgb565(), nullptr, 16 << 11).r, 132);
  EXPECT_EQ(packPixel(pfRgb565(), nullptr, {132, 0, 0, 255}), 16u << 11);
  EXPECT_EQ(unpackPixel(pfArgb8888(), nullptr, 0x80402010), (Colour{0x40, 0x20, 0x10, 0x80}));
}

TEST(PixelCodec, BigEndianAndColourMaps) {
  PixelFormat be = pfRgb565();
  be.bigEndian = 1;
  EXPECT_EQ(packPixel(be, nullptr, {255, 0, 0, 255}), 0x00f8u);
  EXPECT_EQ(unpackPixel(be, nullptr, 0x00f8), (Colour{255, 0, 0, 255}));

  struct Grey : ColourMap {
    Colour lookup(std::uint32_t i) const override {
      const auto v = static_cast<std::int32_t>(i);
      return {v, v, v, 0};
    }
    int size() const override { return 256; }
    std::uint32_t nearest(const Colour& c) const override {
      return static_cast<std::uint32_t>(c.g);
    }
  } grey;
  EXPECT_EQ(unpackPixel(pfPal8(), &grey, 77), (Colour{77, 77, 77, 255}));
  EXPECT_EQ(packPixel(pfPal8(), &grey, {1, 99, 3, 0}), 99u);
  EXPECT_EQ(packPixel(pfPal8(), nullptr, {1, 99, 3, 0}), 0u);
  EXPECT_EQ(unpackPixel(pfPal8(), nullptr, 5), (Colour{0, 0, 0, 255}));
}

} // namespace
} // namespace rfb
