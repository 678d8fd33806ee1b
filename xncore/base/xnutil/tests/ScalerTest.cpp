#include "xnutil/Scaler.h"

#include "plat/Exception.h"
#include "rfb/Drawing.h"
#include "rfb/ManagedPixelBuffer.h"
#include "rfb/PixelCodec.h"
#include "xnutil/ScaledImageLoader.h"
#include "xnutil/ScaledPixelBuffer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace xnutil {
namespace {

using rfb::Colour;
using rfb::ManagedPixelBuffer;
using rfb::PixelFormat;
using rfb::Rect;
using rfb::Size;
using Channels = std::array<std::int64_t, 4>;

/// How a family of routines sees a pixel: the channels it averages and how it
/// writes them back.
struct Domain {
  std::function<Channels(std::uint32_t)> channels;
  std::function<std::uint32_t(const Channels&)> pixel;
};

/// Channels at their own width, as a format scales to itself.
Domain native(const PixelFormat& pf) {
  return {[pf](std::uint32_t v) {
            return Channels{v >> pf.redShift & pf.redMax, v >> pf.greenShift & pf.greenMax,
                            v >> pf.blueShift & pf.blueMax, v >> pf.alphaShift & pf.alphaMax};
          },
          [pf](const Channels& c) {
            return static_cast<std::uint32_t>(c[0] << pf.redShift | c[1] << pf.greenShift |
                                              c[2] << pf.blueShift |
                                              (pf.alphaMax ? c[3] << pf.alphaShift : 0));
          }};
}

/// Colours of 0..255 between two formats, opaque.
Domain unpacked(const PixelFormat& from, const PixelFormat& to, const rfb::ColourMap* map) {
  return {[from, map](std::uint32_t v) {
            const Colour c = rfb::unpackPixel(from, map, v);
            return Channels{c.r, c.g, c.b, 255};
          },
          [to](const Channels& c) {
            return rfb::packPixel(to, nullptr,
                                  {static_cast<std::int32_t>(c[0]), static_cast<std::int32_t>(c[1]),
                                   static_cast<std::int32_t>(c[2]), 255});
          }};
}

std::int64_t overlap(std::int64_t a, std::int64_t aEnd, std::int64_t b, std::int64_t bEnd) {
  return std::max<std::int64_t>(0, std::min(aEnd, bEnd) - std::max(a, b));
}

/// Area averaging written straight from its definition: each destination pixel
/// weighs every source pixel by its overlap, with the row average rounded
/// through the 23-bit reciprocal, then the column average. worstError is the
/// largest distance of a result from the unrounded average in floating point.
struct Reference {
  std::vector<std::uint32_t> pixels;
  double worstError = 0;
};

Reference reference(const std::vector<std::uint32_t>& source, Size from, Size to,
                    const Domain& domain) {
  const std::int64_t sx = from.width, sy = from.height, dx = to.width, dy = to.height;
  const std::int64_t recipX = (1 << 23) / sx, recipY = (1 << 23) / sy;
  Reference out;
  for (std::int64_t y = 0; y < dy; ++y)
    for (std::int64_t x = 0; x < dx; ++x) {
      Channels sums{};
      std::array<double, 4> exact{};
      for (std::int64_t k = y * sy / dy; k * dy < (y + 1) * sy; ++k) {
        const std::int64_t wy = overlap(y * sy, (y + 1) * sy, k * dy, (k + 1) * dy);
        if (!wy)
          continue;
        Channels row{};
        for (std::int64_t i = x * sx / dx; i * dx < (x + 1) * sx; ++i) {
          const std::int64_t wx = overlap(x * sx, (x + 1) * sx, i * dx, (i + 1) * dx);
          const Channels c = domain.channels(source[k * sx + i]);
          for (int ch = 0; ch < 4; ++ch) {
            row[ch] += c[ch] * wx;
            exact[ch] += double(c[ch]) * wx * wy / double(sx * sy);
          }
        }
        for (int ch = 0; ch < 4; ++ch)
          sums[ch] += ((row[ch] + sx / 2) * recipX >> 23) * wy;
      }
      Channels result;
      for (int ch = 0; ch < 4; ++ch) {
        result[ch] = (sums[ch] + sy / 2) * recipY >> 23;
        out.worstError = std::max(out.worstError, std::abs(double(result[ch]) - exact[ch]));
      }
      out.pixels.push_back(domain.pixel(result));
    }
  return out;
}

/// How far one averaging step over `span` units may land from the exact mean:
/// half a step when rounding to nearest, but the truncated reciprocal takes one
/// less when the rounded sum is a multiple of the span, which for an odd span
/// is (span + 1) / (2 span) off. A span of 1 divides exactly.
double roundingError(std::int32_t span) {
  return span == 1 ? 0.0 : span % 2 ? (span + 1) / (2.0 * span) : 0.5;
}

std::vector<std::uint32_t> render(Scaler& scaler, const PixelFormat& pf, Size size,
                                  const Rect& part) {
  ManagedPixelBuffer out(pf, Rect::at({}, size));
  int stride = 0;
  std::uint8_t* at = out.getPixelsRW(part, &stride);
  scaler.getImage(at, part, stride);
  std::vector<std::uint32_t> pixels;
  for (std::int32_t y = part.tl.y; y < part.br.y; ++y)
    for (std::int32_t x = part.tl.x; x < part.br.x; ++x)
      pixels.push_back(out.getPixel({x, y}));
  return pixels;
}

std::uint32_t mask(const PixelFormat& pf) {
  return pf.bpp == 32 ? 0xffffffffu : (1u << pf.bpp) - 1;
}

struct Grey : rfb::ColourMap {
  Colour lookup(std::uint32_t i) const override {
    return {static_cast<std::int32_t>(i), static_cast<std::int32_t>(255 - i), 7, 0};
  }
  int size() const override { return 256; }
  std::uint32_t nearest(const Colour& c) const override { return c.r; }
} grey;

TEST(Scaler, MatchesTheDefinitionForRandomSizesUpAndDown) {
  PixelFormat bigEndian = rfb::pfRgb565();
  bigEndian.bigEndian = 1;
  const PixelFormat rgb24(24, 24, true, 255, 255, 255, 0, 16, 8, 0, 0);
  const struct {
    const char* name;
    PixelFormat from, to;
    const rfb::ColourMap* map;
    Domain domain;
  } families[] = {
      {"exact 888", rfb::pfRgb888(), rfb::pfRgb888(), nullptr, native(rfb::pfRgb888())},
      {"exact 565", rfb::pfRgb565(), rfb::pfRgb565(), nullptr, native(rfb::pfRgb565())},
      {"exact 222", rfb::pfRgb222(), rfb::pfRgb222(), nullptr, native(rfb::pfRgb222())},
      {"same 555", rfb::pfRgb555(), rfb::pfRgb555(), nullptr, native(rfb::pfRgb555())},
      {"same 24-bit", rgb24, rgb24, nullptr, native(rgb24)},
      {"same with alpha", rfb::pfArgb8888(), rfb::pfArgb8888(), nullptr, native(rfb::pfArgb8888())},
      {"to alpha", rfb::pfRgb565(), rfb::pfArgb8888(), nullptr,
       unpacked(rfb::pfRgb565(), rfb::pfArgb8888(), nullptr)},
      {"general", rfb::pfRgb555(), rfb::pfBgr888(), nullptr,
       unpacked(rfb::pfRgb555(), rfb::pfBgr888(), nullptr)},
      {"big-endian", bigEndian, rfb::pfRgb888(), nullptr,
       unpacked(bigEndian, rfb::pfRgb888(), nullptr)},
      {"colour map", rfb::pfPal8(), rgb24, &grey, unpacked(rfb::pfPal8(), rgb24, &grey)},
  };
  std::mt19937 random(20);
  std::uniform_int_distribution<int> sourceSide(1, 24), destSide(1, 48);
  for (const auto& family : families) {
    SCOPED_TRACE(family.name);
    for (int round = 0; round < 25; ++round) {
      const Size from(sourceSide(random), sourceSide(random));
      const Size to(destSide(random), destSide(random));
      ManagedPixelBuffer source(family.from, Rect::at({}, from), family.map);
      std::vector<std::uint32_t> values;
      for (std::int32_t y = 0; y < from.height; ++y)
        for (std::int32_t x = 0; x < from.width; ++x) {
          values.push_back(static_cast<std::uint32_t>(random()) & mask(family.from));
          rfb::fillRect(source, {x, y, x + 1, y + 1}, values.back());
        }
      Scaler scaler;
      scaler.setDestFormat(family.to, nullptr);
      scaler.setDestSize(to);
      scaler.setSource(&source, false);
      const Reference expected = reference(values, from, to, family.domain);
      ASSERT_EQ(render(scaler, family.to, to, Rect::at({}, to)), expected.pixels)
          << from.width << "x" << from.height << " to " << to.width << "x" << to.height;
      EXPECT_LE(expected.worstError, roundingError(from.width) + roundingError(from.height) + 1e-9);

      // A part renders the same pixels as the whole.
      const Rect part(to.width / 3, to.height / 2, to.width, to.height);
      std::vector<std::uint32_t> whole;
      for (std::int32_t y = part.tl.y; y < part.br.y; ++y)
        for (std::int32_t x = part.tl.x; x < part.br.x; ++x)
          whole.push_back(expected.pixels[std::size_t(y * to.width + x)]);
      ASSERT_EQ(render(scaler, family.to, to, part), whole)
          << from.width << "x" << from.height << " to " << to.width << "x" << to.height;
    }
  }
}

std::vector<std::uint32_t> scaleRow(const std::vector<std::uint32_t>& values, Size from, Size to,
                                    const PixelFormat& pf) {
  ManagedPixelBuffer source(pf, Rect::at({}, from));
  rfb::imageRect(source, source.getRect(), values.data(), 0);
  Scaler scaler;
  scaler.setSource(&source, true);
  scaler.setDestSize(to);
  return render(scaler, pf, to, Rect::at({}, to));
}

TEST(Scaler, EdgeCases) {
  // 2 x 2 blocks of 1, 1, 2, 2 average to 1.5, which rounds up.
  EXPECT_EQ(scaleRow({1, 1, 2, 2, 1, 1, 2, 2}, {4, 2}, {2, 1}, rfb::pfRgb888()),
            (std::vector<std::uint32_t>{1, 2}));
  EXPECT_EQ(scaleRow({1, 2, 1, 2}, {2, 2}, {1, 1}, rfb::pfRgb888()),
            (std::vector<std::uint32_t>{2}));
  // The middle of three takes half of each of two.
  EXPECT_EQ(scaleRow({0x000000, 0x0000c8}, {2, 1}, {3, 1}, rfb::pfRgb888()),
            (std::vector<std::uint32_t>{0, 100, 200}));
  // The same size and format copies every bit, filler included.
  const std::vector<std::uint32_t> odd{0xff123456, 0x01abcdef};
  EXPECT_EQ(scaleRow(odd, {2, 1}, {2, 1}, rfb::pfRgb888()), odd);

  // Alpha in the destination only: opaque everywhere.
  ManagedPixelBuffer plain(rfb::pfRgb888(), {0, 0, 3, 3});
  rfb::fillRect(plain, plain.getRect(), 0x102030);
  Scaler scaler;
  scaler.setSource(&plain, false);
  scaler.setDestFormat(rfb::pfArgb8888(), nullptr);
  scaler.setDestSize({2, 2});
  EXPECT_EQ(render(scaler, rfb::pfArgb8888(), {2, 2}, {0, 0, 2, 2}),
            std::vector<std::uint32_t>(4, 0xff102030));
}

TEST(Scaler, FormatsWithoutARoutine) {
  std::vector<std::uint8_t> out(16);
  Scaler none;
  none.setDestSize({2, 2});
  try {
    none.getImage(out.data(), {0, 0, 1, 1});
    ADD_FAILURE() << "no exception";
  } catch (const plat::Exception& e) {
    EXPECT_STREQ(e.what(), "Scaler error: no source");
  }
  ManagedPixelBuffer alpha(rfb::pfArgb8888(), {0, 0, 2, 2});
  Scaler scaler;
  scaler.setSource(&alpha, false);
  scaler.setDestFormat(rfb::pfAbgr8888(), nullptr);
  scaler.setDestSize({1, 1});
  try {
    scaler.getImage(out.data(), {0, 0, 1, 1});
    ADD_FAILURE() << "no exception";
  } catch (const plat::Exception& e) {
    EXPECT_STREQ(e.what(), "Scaler error: depth 32 (32 bpp) little-endian argb8888 to depth 32 "
                           "(32 bpp) little-endian abgr8888");
  }
  scaler.getImage(out.data(), {}); // an empty rectangle asks nothing
}

/// A source that counts the areas it is asked to refresh.
struct WatchedBuffer : ManagedPixelBuffer {
  using ManagedPixelBuffer::ManagedPixelBuffer;
  void update(const rfb::Region& region) override { updated.push_back(Rect(region.extents())); }
  std::vector<Rect> updated;
};

TEST(ScaledPixelBuffer, UpdatesThePartAskedFor) {
  WatchedBuffer source(rfb::pfRgb222(), {10, 10, 14, 14});
  rfb::fillRect(source, source.getRect(), 5);
  ScaledPixelBuffer scaled;
  scaled.setSource(&source, true);
  scaled.setSize({4, 4});
  // At the source's own size and format its pixels are handed out.
  EXPECT_EQ(scaled.getPixelsR({1, 1, 2, 2}, nullptr), source.getPixelsR({11, 11, 12, 12}, nullptr));

  scaled.setSize({8, 8});
  scaled.update(rfb::Region(Rect(1, 1, 3, 3)));
  EXPECT_EQ(source.updated.back(), Rect(10, 10, 12, 12));
  int stride = 0;
  const std::uint8_t* pixels = scaled.getPixelsR({0, 0, 8, 8}, &stride);
  std::string seen;
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 4; ++x)
      seen += char('0' + pixels[y * stride + x]);
  EXPECT_EQ(seen, "0000"
                  "0550"
                  "0550"
                  "0000");
  EXPECT_DEATH(ScaledPixelBuffer().getPixelsR({0, 0, 1, 1}, nullptr), "'pb'");
}

TEST(ScaledPixelBuffer, CompositeScaledStretchesTheSourceArea) {
  ManagedPixelBuffer source(rfb::pfRgb888(), {0, 0, 3, 1});
  const std::uint32_t row[] = {0x000001, 0x000002, 0x000003};
  rfb::imageRect(source, source.getRect(), row, 0);
  ManagedPixelBuffer dest(rfb::pfRgb565(), {0, 0, 6, 1});
  compositeScaled(source, {1, 0, 3, 1}, dest, {1, 0, 5, 1}, rfb::opCopy);
  std::vector<std::uint32_t> blues;
  for (int x = 0; x < 6; ++x)
    blues.push_back(dest.getPixel({x, 0}));
  // 2 and 3 in 8 bits are 0 in 5 bits: 2 * 31 / 255 rounds to 0.
  EXPECT_EQ(blues, (std::vector<std::uint32_t>(6, 0)));
  ManagedPixelBuffer wide(rfb::pfRgb888(), {0, 0, 6, 1});
  compositeScaled(source, {1, 0, 3, 1}, wide, {1, 0, 5, 1}, rfb::opCopy);
  blues.clear();
  for (int x = 0; x < 6; ++x)
    blues.push_back(wide.getPixel({x, 0}));
  EXPECT_EQ(blues, (std::vector<std::uint32_t>{0, 2, 2, 3, 3, 0}));
}

/// Writes a ramp 0, 1, 2, ... in the blue channel of 0RGB.
struct RampLoader : rfb::ImageLoader {
  rfb::Size getSize() const override { return {4, 1}; }
  const PixelFormat& getPf() const override { return rfb::pfRgb888(); }
  void load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) override {
    const std::uint32_t ramp[] = {0, 10, 20, 30};
    rfb::imageRect(buffer, Rect::at(origin, getSize()), ramp, 0);
  }
};

TEST(ScaledImageLoader, ScalesOnlyWhenTheSizesDiffer) {
  RampLoader ramp;
  ManagedPixelBuffer buffer(rfb::pfRgb888(), {0, 0, 5, 1});
  ScaledImageLoader same(ramp, {4, 1});
  same.load(buffer, {1, 0});
  EXPECT_EQ(buffer.getPixel({4, 0}), 30u);
  ScaledImageLoader half(ramp, {2, 1});
  half.load(buffer, {0, 0});
  EXPECT_EQ(buffer.getPixel({0, 0}), 5u);
  EXPECT_EQ(buffer.getPixel({1, 0}), 25u);
  EXPECT_EQ(buffer.getPixel({2, 0}), 10u);

  ManagedPixelBuffer other(rfb::pfRgb565(), {0, 0, 2, 1});
  EXPECT_DEATH(half.load(other, {}), "pb->getPf\\(\\).equal\\(il->getPf\\(\\)\\)");
}

} // namespace
} // namespace xnutil
