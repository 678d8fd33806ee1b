// PixelBufferQt: the Qt binding's counterpart of a native bitmap, a pixel
// buffer whose memory Qt paints from directly. Its format is always one of
// Qt's own layouts; wrap hands any buffer in such a layout to Qt as a QImage
// over the same memory, without a copy.
#pragma once

#include "rfb/ManagedPixelBuffer.h"

#include <QImage>

namespace mui {

class PixelBufferQt : public rfb::ManagedPixelBuffer {
public:
  PixelBufferQt() = default;
  PixelBufferQt(const rfb::PixelFormat& format, const rfb::Rect& rect);

  /// Takes the nearest format Qt paints from, as a native bitmap would: with
  /// alpha premultiplied ARGB, else 0RGB, or RGB565 or RGB555 at 16 bits.
  void setPF(const rfb::PixelFormat& format) override;

  /// The pixels as a QImage over this buffer's memory; see wrap.
  QImage image() { return wrap(*this); }

  /// `buffer`'s pixels as a QImage over the same memory, which must outlive it
  /// and every copy Qt doesn't detach; painting on it paints on the buffer. A
  /// null image for a format Qt has no layout for. Qt reads the unused byte of
  /// an opaque 32-bit pixel, so it is set to 0xff first.
  static QImage wrap(rfb::FullFramePixelBuffer& buffer);
};

/// The QImage layout of `format`, or QImage::Format_Invalid.
QImage::Format qtImageFormat(const rfb::PixelFormat& format);

} // namespace mui
