#include "xnutil/PngFile.h"

#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/ImageExceptions.h"
#include "xnutil/tests/PngSamples.h"

#include <gtest/gtest.h>
#include <png.h>

#include <string>

namespace xnutil {
namespace {

using test::encodePng;
using test::PngSpec;
using test::Rgba;

/// Decodes `png` and gives its pixels as 0xAARRGGBB words.
std::vector<std::uint32_t> decode(const std::vector<std::uint8_t>& png, bool premultiply,
                                  rfb::PixelFormat* format = nullptr) {
  PngFile file(png.data(), png.size(), premultiply, "sample");
  rfb::ManagedPixelBuffer buffer(file.getPf(), rfb::Rect::at({}, file.getSize()));
  file.load(buffer, {});
  if (format)
    *format = file.getPf();
  std::vector<std::uint32_t> pixels;
  for (std::int32_t y = 0; y < buffer.height(); ++y)
    for (std::int32_t x = 0; x < buffer.width(); ++x)
      pixels.push_back(buffer.getPixel({x, y}));
  return pixels;
}

// Four pixels: red, a half-transparent green, grey, and a clear blue.
const std::vector<Rgba> quad{{255, 0, 0, 255}, {0, 200, 0, 128}, {90, 90, 90, 255}, {0, 0, 255, 0}};

TEST(PngFile, EveryColourTypeDecodesToFourBytesAPixel) {
  const Rgba transparentGrey{90, 90, 90, 255};
  const std::vector<Rgba> palette{
      {255, 0, 0, 255}, {0, 200, 0, 128}, {90, 90, 90, 255}, {0, 0, 255, 0}};
  const std::vector<Rgba> indices{{0, 0, 0, 0}, {1, 0, 0, 0}, {2, 0, 0, 0}, {3, 0, 0, 0}};
  const std::vector<Rgba> greys{{0, 0, 0, 255}, {255, 0, 0, 0}, {90, 0, 0, 255}, {170, 0, 0, 51}};
  const bool opaque = false, alpha = true;
  const struct {
    const char* name;
    PngSpec spec;
    const std::vector<Rgba>& pixels;
    bool hasAlpha;
    std::vector<std::uint32_t> expected; // premultiplied
  } rows[] = {
      {"rgba",
       {2, 2, PNG_COLOR_TYPE_RGB_ALPHA, 8},
       quad,
       alpha,
       {0xffff0000, 0x80006400, 0xff5a5a5a, 0x00000000}},
      {"rgb",
       {2, 2, PNG_COLOR_TYPE_RGB, 8},
       quad,
       opaque,
       {0x00ff0000, 0x0000c800, 0x005a5a5a, 0x000000ff}},
      {"rgb 16-bit",
       {2, 2, PNG_COLOR_TYPE_RGB, 16},
       quad,
       opaque,
       {0x00ff0000, 0x0000c800, 0x005a5a5a, 0x000000ff}},
      {"rgba interlaced",
       {2, 2, PNG_COLOR_TYPE_RGB_ALPHA, 8, true},
       quad,
       alpha,
       {0xffff0000, 0x80006400, 0xff5a5a5a, 0x00000000}},
      {"rgb with a transparent colour",
       {2, 2, PNG_COLOR_TYPE_RGB, 8, false, {}, &transparentGrey},
       quad,
       alpha,
       {0xffff0000, 0xff00c800, 0x00000000, 0xff0000ff}},
      {"palette",
       {2, 2, PNG_COLOR_TYPE_PALETTE, 8, false, palette},
       indices,
       alpha,
       {0xffff0000, 0x80006400, 0xff5a5a5a, 0x00000000}},
      {"palette 2-bit",
       {2, 2, PNG_COLOR_TYPE_PALETTE, 2, false, palette},
       indices,
       alpha,
       {0xffff0000, 0x80006400, 0xff5a5a5a, 0x00000000}},
      {"opaque palette",
       {2, 2, PNG_COLOR_TYPE_PALETTE, 8, false, {{1, 2, 3, 255}, {4, 5, 6, 255}}},
       std::vector<Rgba>{{1}, {0}, {1}, {0}},
       opaque,
       {0x00040506, 0x00010203, 0x00040506, 0x00010203}},
      {"grey",
       {2, 2, PNG_COLOR_TYPE_GRAY, 8},
       greys,
       opaque,
       {0x00000000, 0x00ffffff, 0x005a5a5a, 0x00aaaaaa}},
      {"grey 1-bit",
       {2, 2, PNG_COLOR_TYPE_GRAY, 1},
       greys,
       opaque,
       {0x00000000, 0x00ffffff, 0x00000000, 0x00ffffff}},
      {"grey 16-bit",
       {2, 2, PNG_COLOR_TYPE_GRAY, 16},
       greys,
       opaque,
       {0x00000000, 0x00ffffff, 0x005a5a5a, 0x00aaaaaa}},
      {"grey with alpha",
       {2, 2, PNG_COLOR_TYPE_GRAY_ALPHA, 8},
       greys,
       alpha,
       {0xff000000, 0x00000000, 0xff5a5a5a, 0x33222222}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    rfb::PixelFormat format;
    EXPECT_EQ(decode(encodePng(row.spec, row.pixels), true, &format), row.expected);
    EXPECT_EQ(format, row.hasAlpha ? rfb::pfArgb8888() : rfb::pfRgb888());
  }
  // Without premultiplying, colours keep their own values under any alpha.
  EXPECT_EQ(decode(encodePng(rows[0].spec, quad), false),
            (std::vector<std::uint32_t>{0xffff0000, 0x8000c800, 0xff5a5a5a, 0x000000ff}));
}

TEST(PngFile, InterlacedPassesFillEveryPixel) {
  PngSpec spec{11, 9, PNG_COLOR_TYPE_RGB, 8, true};
  std::vector<Rgba> pixels;
  std::vector<std::uint32_t> expected;
  for (int i = 0; i < 99; ++i) {
    pixels.push_back({static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(2 * i), 7, 255});
    expected.push_back(std::uint32_t(i) << 16 | std::uint32_t(2 * i) << 8 | 7);
  }
  EXPECT_EQ(decode(encodePng(spec, pixels), true), expected);
}

std::string failure(const std::vector<std::uint8_t>& png, bool& inHeader) {
  inHeader = true;
  try {
    PngFile file(png.data(), png.size(), true, "cut.png");
    inHeader = false;
    rfb::ManagedPixelBuffer buffer(file.getPf(), rfb::Rect::at({}, file.getSize()));
    file.load(buffer, {});
  } catch (const PngException& e) {
    EXPECT_STREQ(e.type(), "PngException");
    return e.what();
  }
  return "";
}

TEST(PngFile, DamagedDataRaisesPngException) {
  const std::vector<std::uint8_t> good =
      encodePng({16, 16, PNG_COLOR_TYPE_RGB, 8}, std::vector<Rgba>(256, {9, 8, 7, 255}));
  bool inHeader = false;
  // Cut inside the header: the constructor fails.
  EXPECT_EQ(failure({good.begin(), good.begin() + 20}, inHeader), "Bad PNG data: cut.png");
  EXPECT_TRUE(inHeader);
  // Cut in the pixel data: the header stands and load fails.
  EXPECT_EQ(failure({good.begin(), good.end() - 20}, inHeader), "Bad PNG data: cut.png");
  EXPECT_FALSE(inHeader);
  // Not a PNG at all, and a damaged header checksum: libpng's own words.
  std::vector<std::uint8_t> text{'G', 'I', 'F', '8', '9', 'a', 0, 0, 0, 0, 0, 0};
  EXPECT_NE(failure(text, inHeader).find(": cut.png"), std::string::npos);
  std::vector<std::uint8_t> badCrc = good;
  badCrc[29] ^= 0x55;
  EXPECT_NE(failure(badCrc, inHeader), "");
  EXPECT_TRUE(inHeader);
  // Any single damaged byte gives a picture or the exception, never worse.
  for (std::size_t i = 0; i < good.size(); ++i) {
    std::vector<std::uint8_t> damaged = good;
    damaged[i] ^= 0xa5;
    failure(damaged, inHeader);
  }
}

} // namespace
} // namespace xnutil
