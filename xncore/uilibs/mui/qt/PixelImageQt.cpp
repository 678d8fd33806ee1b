#include "mui/qt/PixelImageQt.h"

#include "rfb/PixelBuffer.h"
#include "rfb/PixelCodec.h"
#include "ui/NamedImage.h"
#include "xnutil/DisplayScale.h"

#include <cmath>

namespace mui {

QImage imageFromBuffer(rfb::PixelBuffer& buffer) {
  const int width = buffer.width();
  const int height = buffer.height();
  if (width <= 0 || height <= 0)
    return QImage();
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  const rfb::PixelFormat& format = buffer.getPf();
  const int bytes = format.bytesPerPixel();
  int stride = 0;
  const std::uint8_t* pixels = buffer.getPixelsR(buffer.getRect(), &stride);
  for (int y = 0; y < height; ++y) {
    const std::uint8_t* source = pixels + static_cast<std::ptrdiff_t>(y) * stride * bytes;
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x, source += bytes) {
      const rfb::Colour c =
          rfb::unpackPixel(format, buffer.getColourMap(), rfb::loadPixel(source, bytes));
      line[x] = qRgba(c.r, c.g, c.b, c.a);
    }
  }
  return image;
}

qreal deviceRatio() {
  return xnutil::deviceScalePercent() / 100.0;
}

Size toDevicePixels(Size size) {
  const qreal ratio = deviceRatio();
  return {static_cast<int>(std::lround(size.width * ratio)),
          static_cast<int>(std::lround(size.height * ratio))};
}

QPixmap namedPixmap(const char* name, Size size) {
  QPixmap pixmap =
      QPixmap::fromImage(imageFromBuffer(*ui::getNamedImage(name, toDevicePixels(size))));
  pixmap.setDevicePixelRatio(deviceRatio());
  return pixmap;
}

QSize layoutSize(const QImage& image) {
  return image.deviceIndependentSize().toSize();
}

QSize layoutSize(const QPixmap& pixmap) {
  return pixmap.deviceIndependentSize().toSize();
}

} // namespace mui
