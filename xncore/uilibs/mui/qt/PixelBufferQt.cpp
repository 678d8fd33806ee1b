#include "mui/qt/PixelBufferQt.h"

namespace mui {

QImage::Format qtImageFormat(const rfb::PixelFormat& format) {
  if (format == rfb::pfArgb8888())
    return QImage::Format_ARGB32_Premultiplied;
  if (format == rfb::pfRgb888())
    return QImage::Format_RGB32;
  if (format == rfb::pfRgb565())
    return QImage::Format_RGB16;
  if (format == rfb::pfRgb555())
    return QImage::Format_RGB555;
  return QImage::Format_Invalid;
}

PixelBufferQt::PixelBufferQt(const rfb::PixelFormat& format, const rfb::Rect& rect) {
  rect_ = rect;
  setPF(format);
}

void PixelBufferQt::setPF(const rfb::PixelFormat& format) {
  if (format.hasAlpha())
    ManagedPixelBuffer::setPF(rfb::pfArgb8888());
  else if (format.bpp == 16)
    ManagedPixelBuffer::setPF(format.depth == 15 ? rfb::pfRgb555() : rfb::pfRgb565());
  else
    ManagedPixelBuffer::setPF(rfb::pfRgb888());
}

QImage PixelBufferQt::wrap(rfb::FullFramePixelBuffer& buffer) {
  const QImage::Format layout = qtImageFormat(buffer.getPf());
  const rfb::Rect& rect = buffer.getRect();
  if (layout == QImage::Format_Invalid || rect.isEmpty())
    return QImage();
  int stride = 0;
  std::uint8_t* pixels = buffer.getPixelsRW(rect, &stride);
  const qsizetype rowBytes = qsizetype{stride} * buffer.getPf().bytesPerPixel();
  if (layout == QImage::Format_RGB32) {
    for (std::int32_t y = 0; y < rect.height(); ++y)
      for (std::int32_t x = 0; x < rect.width(); ++x)
        pixels[y * rowBytes + x * 4 + 3] = 0xff;
  }
  return QImage(pixels, rect.width(), rect.height(), rowBytes, layout);
}

} // namespace mui
