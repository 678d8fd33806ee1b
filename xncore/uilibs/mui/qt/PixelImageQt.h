// The pixels of a buffer as a QImage, for widgets that paint images.
#pragma once

#include <QImage>

namespace rfb {
class PixelBuffer;
}

namespace mui {

/// A copy of `buffer`'s pixels. Colours with alpha are premultiplied in the
/// buffers, so the image is too; a buffer without pixels gives a null image.
QImage imageFromBuffer(rfb::PixelBuffer& buffer);

} // namespace mui
