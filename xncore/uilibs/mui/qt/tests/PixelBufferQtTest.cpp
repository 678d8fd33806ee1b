// Pixel buffers handed to Qt: the same memory, read in the same colours, and
// painted on through it.
#include "mui/qt/PixelBufferQt.h"

#include "rfb/Drawing.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace mui {
namespace {

TEST(PixelBufferQt, FormatsBecomeQtLayouts) {
  const struct {
    rfb::PixelFormat asked;
    rfb::PixelFormat taken;
    QImage::Format layout;
  } rows[] = {
      {rfb::pfAbgr8888(), rfb::pfArgb8888(), QImage::Format_ARGB32_Premultiplied},
      {rfb::pfBgr888(), rfb::pfRgb888(), QImage::Format_RGB32},
      {rfb::pfPal8(), rfb::pfRgb888(), QImage::Format_RGB32},
      {rfb::pfRgb565(), rfb::pfRgb565(), QImage::Format_RGB16},
      {rfb::pfRgb555(), rfb::pfRgb555(), QImage::Format_RGB555},
  };
  for (const auto& row : rows) {
    PixelBufferQt buffer(row.asked, {0, 0, 3, 2});
    EXPECT_EQ(buffer.getPf(), row.taken);
    EXPECT_EQ(buffer.image().format(), row.layout);
  }
  rfb::ManagedPixelBuffer palette(rfb::pfPal8(), {0, 0, 2, 2});
  EXPECT_TRUE(PixelBufferQt::wrap(palette).isNull());
}

TEST(PixelBufferQt, HandsOverTheSameMemory) {
  PixelBufferQt opaque(rfb::pfRgb888(), {0, 0, 4, 3});
  rfb::fillRect(opaque, opaque.getRect(), 0x00123456);
  const QImage image = opaque.image();
  EXPECT_EQ(image.constBits(), opaque.getPixelsR(opaque.getRect(), nullptr));
  EXPECT_EQ(image.size(), QSize(4, 3));
  EXPECT_EQ(image.pixel(3, 2), 0xff123456u);

  // A window on part of a buffer keeps the rows of the whole.
  rfb::ManagedPixelBuffer translucent(rfb::pfArgb8888(), {0, 0, 5, 5});
  rfb::fillRect(translucent, {2, 2, 3, 3}, 0x80400000);
  rfb::FullFramePixelBuffer window(translucent, {1, 1, 4, 4});
  const QImage part = PixelBufferQt::wrap(window);
  EXPECT_EQ(part.bytesPerLine(), 20);
  EXPECT_EQ(reinterpret_cast<const QRgb*>(part.constScanLine(1))[1], 0x80400000u);
  // Qt reads it as premultiplied: half red over white is light red.
  QImage white(3, 3, QImage::Format_RGB32);
  white.fill(Qt::white);
  {
    QPainter painter(&white);
    painter.drawImage(0, 0, part);
  }
  const QColor seen = white.pixelColor(1, 1);
  EXPECT_NEAR(seen.red(), 191, 1);
  EXPECT_NEAR(seen.green(), 127, 1);
  EXPECT_EQ(white.pixelColor(0, 0), QColor(Qt::white));
}

TEST(PixelBufferQt, QtPaintsIntoTheBuffer) {
  PixelBufferQt buffer(rfb::pfArgb8888(), {0, 0, 4, 4});
  QImage image = buffer.image();
  {
    QPainter painter(&image);
    painter.fillRect(1, 1, 2, 2, QColor(0, 0, 255, 255));
  }
  EXPECT_EQ(buffer.getPixel({1, 1}), 0xff0000ffu);
  EXPECT_EQ(buffer.getPixel({0, 0}), 0u);
}

} // namespace
} // namespace mui
