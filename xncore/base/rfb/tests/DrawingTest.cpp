#include "rfb/Drawing.h"

#include "rfb/ManagedPixelBuffer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace rfb {
namespace {

/// The pixels of an 8-bit buffer, rows separated by '|', 0 as '.'.
std::string picture(ManagedPixelBuffer& buffer) {
  std::string text;
  for (std::int32_t y = 0; y < buffer.height(); ++y) {
    if (y)
      text += '|';
    for (std::int32_t x = 0; x < buffer.width(); ++x) {
      const std::uint32_t v = buffer.getPixel({x, y});
      text += v ? static_cast<char>(v < 10 ? '0' + v : 'a' + v - 10) : '.';
    }
  }
  return text;
}

const std::uint8_t solidMask[] = {0b10100000, 0b01000000, 0b11100000};

TEST(Drawing, SolidShapesClipToTheBuffer) {
  const struct {
    const char* name;
    void (*draw)(ManagedPixelBuffer&);
    const char* expected;
  } rows[] = {
      {"fill",
       [](ManagedPixelBuffer& b) {
         fillRect(b, {-2, 3, 2, 9}, 1);
       },
       ".....|.....|.....|11...|11..."},
      {"frame",
       [](ManagedPixelBuffer& b) {
         frameRect(b, {0, 0, 5, 4}, 2, 1);
       },
       "22222|2...2|2...2|22222|....."},
      {"thick frame",
       [](ManagedPixelBuffer& b) {
         frameRect(b, {0, 0, 5, 5}, 3, 2);
       },
       "33333|33333|33.33|33333|33333"},
      {"line",
       [](ManagedPixelBuffer& b) {
         drawLine(b, {0, 0}, {4, 2}, 4);
       },
       "4....|.44..|...4.|.....|....."},
      {"clipped line",
       [](ManagedPixelBuffer& b) {
         drawLine(b, {-2, 4}, {7, 4}, 5);
       },
       ".....|.....|.....|.....|55555"},
      {"point line",
       [](ManagedPixelBuffer& b) {
         drawLine(b, {2, 2}, {2, 2}, 5);
       },
       ".....|.....|.....|.....|....."},
      {"round",
       [](ManagedPixelBuffer& b) {
         roundRect(b, {0, 0, 5, 5}, 9, 6);
       },
       ".666.|6...6|6...6|6...6|.666."},
      {"square",
       [](ManagedPixelBuffer& b) {
         roundRect(b, {1, 1, 4, 4}, 0, 6);
       },
       ".....|.666.|.6.6.|.666.|....."},
      {"mask",
       [](ManagedPixelBuffer& b) {
         maskRect(b, {1, 1, 4, 4}, 7, solidMask, 0, {});
       },
       ".....|.7.7.|..7..|.777.|....."},
      {"mask offset",
       [](ManagedPixelBuffer& b) {
         maskRect(b, {0, 0, 2, 2}, 7, solidMask, 1, {1, 1});
       },
       "7....|77...|.....|.....|....."},
  };
  for (const auto& row : rows) {
    ManagedPixelBuffer buffer(pfPal8(), {0, 0, 5, 5});
    row.draw(buffer);
    EXPECT_EQ(picture(buffer), row.expected) << row.name;
  }
}

// Rows interpolate to nearest, rising or falling; the rectangle counts its
// clipped rows too.
TEST(Drawing, Gradients) {
  const struct {
    Rect rect;
    std::int32_t top, bottom;
    std::vector<std::int32_t> reds;
  } rows[] = {
      {{0, -1, 1, 4}, 2, 6, {3, 4, 5, 6}},
      {{0, 0, 1, 3}, 9, 4, {9, 7, 4, 0}}, // -2.5 rounds to -2
      {{0, 0, 1, 4}, 0, 255, {0, 85, 170, 255}},
      {{0, 0, 1, 1}, 8, 1, {8, 0, 0, 0}},
  };
  for (const auto& row : rows) {
    ManagedPixelBuffer buffer(pfRgb888(), {0, 0, 1, 4});
    gradientRect(buffer, row.rect, {row.top, 0, 0, 255}, {row.bottom, 0, 0, 255});
    std::vector<std::int32_t> reds;
    for (std::int32_t y = 0; y < 4; ++y)
      reds.push_back(static_cast<std::int32_t>(buffer.getPixel({0, y}) >> 16));
    EXPECT_EQ(reds, row.reds) << toString(row.rect).get();
  }
}

TEST(Drawing, PixelSizesOfFillAndInvert) {
  const struct {
    PixelFormat pf;
    std::vector<std::uint8_t> filled;
  } rows[] = {
      {pfPal8(), {0x44}},
      {pfRgb565(), {0x44, 0x33}},
      {PixelFormat(24, 24, true, 255, 255, 255, 0, 16, 8, 0, 0), {0x44, 0x33, 0x22}},
      {pfRgb888(), {0x44, 0x33, 0x22, 0x11}},
  };
  for (const auto& row : rows) {
    ManagedPixelBuffer buffer(row.pf, {0, 0, 2, 1});
    fillRect(buffer, buffer.getRect(), 0x11223344);
    invertRect(buffer, {1, 0, 2, 1}, 0xffffffff);
    const std::uint8_t* p = buffer.getPixelsRW(buffer.getRect(), nullptr);
    const std::size_t n = row.filled.size();
    EXPECT_EQ(std::vector<std::uint8_t>(p, p + n), row.filled) << int(row.pf.bpp);
    for (std::size_t i = 0; i < n; ++i)
      EXPECT_EQ(p[n + i], static_cast<std::uint8_t>(~row.filled[i])) << int(row.pf.bpp);
  }
}

TEST(Drawing, ImageCopies) {
  // A 3 x 2 source: row 1 2 3, row 4 5 6.
  const std::uint8_t source[] = {1, 2, 3, 4, 5, 6};
  const std::uint8_t mask[] = {0b01000000, 0b11000000};
  const struct {
    const char* name;
    void (*draw)(ManagedPixelBuffer&, const std::uint8_t*, const std::uint8_t*);
    const char* expected;
  } rows[] = {
      {"plain",
       [](ManagedPixelBuffer& b, auto s, auto) {
         imageRect(b, {1, 1, 4, 3}, s, 0);
       },
       "....|.123|.456|...."},
      {"clipped keeps the full stride",
       [](ManagedPixelBuffer& b, auto s, auto) {
         imageRect(b, {-1, -1, 2, 1}, s, 0);
       },
       "56..|....|....|...."},
      {"narrow stride",
       [](ManagedPixelBuffer& b, auto s, auto) {
         imageRect(b, {0, 0, 2, 2}, s, 3);
       },
       "12..|45..|....|...."},
      {"quarter turn",
       [](ManagedPixelBuffer& b, auto s, auto) {
         imageRectRotated(b, {0, 0, 2, 3}, s, 0, 1);
       },
       "41..|52..|63..|...."},
      {"half turn",
       [](ManagedPixelBuffer& b, auto s, auto) {
         imageRectRotated(b, {0, 0, 3, 2}, s, 0, 2);
       },
       "654.|321.|....|...."},
      {"three quarter turns",
       [](ManagedPixelBuffer& b, auto s, auto) {
         imageRectRotated(b, {0, 0, 2, 3}, s, 0, 3);
       },
       "36..|25..|14..|...."},
      {"masked",
       [](ManagedPixelBuffer& b, auto s, auto m) {
         maskImageRect(b, {0, 0, 3, 2}, s, m, 0, 1, {});
       },
       ".2..|45..|....|...."},
  };
  for (const auto& row : rows) {
    ManagedPixelBuffer buffer(pfPal8(), {0, 0, 4, 4});
    row.draw(buffer, source, mask);
    EXPECT_EQ(picture(buffer), row.expected) << row.name;
  }
}

TEST(Drawing, TilesRepeatFromTheOffset) {
  ManagedPixelBuffer tile(pfPal8(), {0, 0, 2, 2});
  const std::uint8_t pattern[] = {1, 2, 3, 4};
  imageRect(tile, tile.getRect(), pattern, 0);
  ManagedPixelBuffer buffer(pfPal8(), {0, 0, 5, 4});
  const Region area = Region(Rect(0, 0, 5, 1)).unionWith(Region(Rect(1, 2, 4, 4)));
  tileRect(tile, {1, 0}, buffer, area);
  EXPECT_EQ(picture(buffer), "21212|.....|.121.|.343.");
}

TEST(Drawing, CopiesWithinABufferSurviveOverlap) {
  const std::uint8_t numbers[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  const struct {
    const char* name;
    void (*move)(ManagedPixelBuffer&);
    const char* expected;
  } rows[] = {
      {"down right",
       [](ManagedPixelBuffer& b) {
         copyRect(b, {1, 1, 4, 4}, {1, 1});
       },
       "1234|5123|9567|d9ab"},
      {"up left",
       [](ManagedPixelBuffer& b) {
         copyRect(b, {0, 0, 3, 3}, {-1, -1});
       },
       "6784|abc8|efgc|defg"},
      {"clipped source",
       [](ManagedPixelBuffer& b) {
         copyRect(b, {0, 0, 4, 1}, {2, 0});
       },
       "1212|5678|9abc|defg"},
      // Two bands moved down over each other: the lower band goes first.
      {"region down",
       [](ManagedPixelBuffer& b) {
         copyRegion(b, Region(Rect(0, 1, 1, 2)).unionWith(Region(Rect(2, 2, 3, 3))), {0, 1});
       },
       "1234|1678|9a7c|defg"},
      {"region right",
       [](ManagedPixelBuffer& b) {
         copyRegion(b, Region(Rect(1, 0, 2, 1)).unionWith(Region(Rect(3, 0, 4, 1))), {1, 0});
       },
       "1133|5678|9abc|defg"},
  };
  for (const auto& row : rows) {
    ManagedPixelBuffer buffer(pfPal8(), {0, 0, 4, 4});
    imageRect(buffer, buffer.getRect(), numbers, 0);
    row.move(buffer);
    EXPECT_EQ(picture(buffer), row.expected) << row.name;
  }
}

} // namespace
} // namespace rfb
