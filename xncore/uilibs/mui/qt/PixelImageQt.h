// The pixels of a buffer, or of a named image, as Qt paints them, for widgets
// that paint images of their own.
#pragma once

#include "mui/Geometry.h"

#include <QImage>
#include <QPixmap>

namespace rfb {
class PixelBuffer;
}

namespace mui {

/// A copy of `buffer`'s pixels. Colours with alpha are premultiplied in the
/// buffers, so the image is too; a buffer without pixels gives a null image.
QImage imageFromBuffer(rfb::PixelBuffer& buffer);

/// The named image at `size` (empty: its own size at the display scale) as a
/// pixmap; a null pixmap when there is no such image.
QPixmap namedPixmap(const char* name, Size size);

} // namespace mui
