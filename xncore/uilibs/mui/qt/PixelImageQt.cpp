#include "mui/qt/PixelImageQt.h"

#include "rfb/PixelBuffer.h"
#include "rfb/PixelCodec.h"
#include "ui/NamedImage.h"

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

QPixmap namedPixmap(const char* name, Size size) {
  return QPixmap::fromImage(imageFromBuffer(*ui::getNamedImage(name, size)));
}

} // namespace mui
