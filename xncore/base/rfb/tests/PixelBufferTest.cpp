#include "rfb/Drawing.h"
#include "rfb/ManagedPixelBuffer.h"
#include "rfb/SubPixelBuffer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <numeric>
#include <vector>

namespace rfb {
namespace {

/// A buffer of 8-bit pixels numbered row by row from `first`.
void number(ManagedPixelBuffer& buffer, int first = 1) {
  std::vector<std::uint8_t> values(std::size_t(buffer.width()) * buffer.height());
  std::iota(values.begin(), values.end(), static_cast<std::uint8_t>(first));
  imageRect(buffer, buffer.getRect(), values.data(), 0);
}

std::vector<std::uint8_t> pixelsOf(PixelBuffer& buffer, const Rect& rect) {
  std::vector<std::uint8_t> out(std::size_t(rect.width()) * rect.height() *
                                buffer.getPf().bytesPerPixel());
  buffer.getImage(out.data(), rect);
  return out;
}

TEST(PixelBuffer, AddressesAndBounds) {
  ManagedPixelBuffer buffer(pfRgb565(), {0, 0, 4, 3});
  int stride = 0;
  std::uint8_t* base = buffer.getPixelsRW({0, 0, 4, 3}, &stride);
  EXPECT_EQ(stride, 4);
  EXPECT_EQ(buffer.getPixelsRW({1, 2, 3, 3}, nullptr), base + (2 * 4 + 1) * 2);
  // An empty rectangle is null even far outside.
  EXPECT_EQ(buffer.getPixelsRW({50, 50, 50, 60}, &stride), nullptr);
  EXPECT_DEATH(buffer.getPixelsRW({1, 1, 5, 2}, nullptr),
               "rect.encloses\\(r\\).*getPixelsRW out of bounds: 1,1 to 5,2 outside 0,0 to 4,3");

  SubPixelBuffer window(buffer, {2, 1, 10, 10});
  EXPECT_EQ(window.getRect(), Rect(0, 0, 2, 2));
  EXPECT_EQ(window.getPixelsR({0, 0, 1, 1}, nullptr), base + (1 * 4 + 2) * 2);
  EXPECT_DEATH(window.getPixelsR({0, 0, 3, 1}, nullptr),
               "getPixelsR out of bounds: 0,0 to 3,1 outside 0,0 to 2,2");
}

TEST(PixelBuffer, SharedSubBufferKeepsTheGivenOrigin) {
  ManagedPixelBuffer buffer(pfPal8(), {0, 0, 4, 4});
  number(buffer);
  // The area starts one pixel above and left of the buffer, so the shared
  // part begins at 1,1 in the new coordinates.
  FullFramePixelBuffer shared(buffer, {-1, -1, 2, 2});
  EXPECT_EQ(shared.getRect(), Rect(1, 1, 3, 3));
  EXPECT_EQ(shared.getPixel({1, 1}), 1u);
  EXPECT_EQ(shared.getPixel({2, 2}), 6u);
  fillRect(shared, shared.getRect(), 0);
  EXPECT_EQ(pixelsOf(buffer, {0, 0, 3, 2}), (std::vector<std::uint8_t>{0, 0, 3, 0, 0, 7}));
  EXPECT_TRUE(FullFramePixelBuffer(buffer, {9, 9, 12, 12}).getRect().isEmpty());
}

TEST(PixelBuffer, GetPixelBySize) {
  const std::uint8_t bytes[] = {0x11, 0x22, 0x33, 0x44};
  std::uint8_t data[4];
  const struct {
    PixelFormat pf;
    std::uint32_t value;
  } rows[] = {{pfPal8(), 0x11},
              {pfRgb565(), 0x2211},
              {PixelFormat(24, 24, true, 255, 255, 255, 0, 16, 8, 0, 0), 0x332211},
              {pfRgb888(), 0x44332211},
              {PixelFormat(40, 24, true, 255, 255, 255, 0, 16, 8, 0, 0), 0}};
  for (const auto& row : rows) {
    std::memcpy(data, bytes, 4);
    FullFramePixelBuffer buffer(row.pf, {0, 0, 1, 1}, nullptr, data, 0);
    EXPECT_EQ(buffer.getPixel({0, 0}), row.value) << int(row.pf.bpp);
  }
}

TEST(ManagedPixelBuffer, SizeChangesKeepTheCommonPart) {
  ManagedPixelBuffer buffer(pfPal8(), {0, 0, 3, 3});
  number(buffer);
  const std::size_t capacity = buffer.capacity();
  buffer.setSize(2, 2);
  EXPECT_EQ(buffer.capacity(), capacity);
  buffer.setSize(3, 3);
  EXPECT_EQ(pixelsOf(buffer, buffer.getRect()),
            (std::vector<std::uint8_t>{1, 2, 0, 4, 5, 0, 0, 0, 0}));

  buffer.setPreservePixels(false);
  buffer.setSize(4, 1);
  EXPECT_EQ(pixelsOf(buffer, buffer.getRect()), (std::vector<std::uint8_t>(4, 0)));
  buffer.setSize(0, 5);
  EXPECT_EQ(buffer.capacity(), 0u);

  // A new format clears the pixels; the same format keeps them.
  ManagedPixelBuffer coloured(pfRgb888(), {0, 0, 2, 1});
  fillRect(coloured, coloured.getRect(), 0x123456);
  coloured.setPF(pfRgb888());
  EXPECT_EQ(coloured.getPixel({1, 0}), 0x123456u);
  coloured.setPF(pfBgr888());
  EXPECT_EQ(coloured.getPixel({1, 0}), 0u);
}

TEST(ManagedPixelBuffer, CopiesAnotherBuffer) {
  ManagedPixelBuffer source(pfPal8(), {0, 0, 3, 2});
  number(source, 10);
  SubPixelBuffer window(source, {1, 0, 3, 2});
  ManagedPixelBuffer copy(window);
  EXPECT_EQ(copy.getRect(), Rect(0, 0, 2, 2));
  EXPECT_EQ(pixelsOf(copy, copy.getRect()), (std::vector<std::uint8_t>{11, 12, 14, 15}));
  // A destination stride wider than the rectangle leaves the gaps alone.
  std::vector<std::uint8_t> wide(6, 0xee);
  source.getImage(wide.data(), {0, 0, 2, 2}, 3);
  EXPECT_EQ(wide, (std::vector<std::uint8_t>{10, 11, 0xee, 13, 14, 0xee}));
}

TEST(ManagedPixelBuffer, RectangleMustFitSixteenBitCoordinates) {
  EXPECT_DEATH(ManagedPixelBuffer(pfPal8(), {0, 0, 40000, 1}),
               "Rect\\(RgnRect\\(rect\\)\\) == rect");
}

} // namespace
} // namespace rfb
