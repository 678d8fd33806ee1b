// The pixels of a buffer, or of a named image, as Qt paints them, for widgets
// that paint images of their own. Where the display scales the layout's
// pixels (a device pixel ratio above 1), named images are loaded at the
// device's resolution and painted at their size in layout pixels.
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

/// The device pixels of one layout pixel, as the display scale counts them.
qreal deviceRatio();

/// The named image at `size` in layout pixels (empty: its own size at the
/// display scale) as a pixmap at the device's resolution; a null pixmap when
/// there is no such image.
QPixmap namedPixmap(const char* name, Size size);
/// `size` in layout pixels as device pixels, for asking for a named image.
Size toDevicePixels(Size size);
/// The size in layout pixels that an image or pixmap covers.
QSize layoutSize(const QImage& image);
QSize layoutSize(const QPixmap& pixmap);

} // namespace mui
