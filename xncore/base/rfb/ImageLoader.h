// A source of one image that writes its pixels into a buffer on request, such
// as a decoder of an image file.
#pragma once

#include "rfb/PixelFormat.h"
#include "rfb/Rect.h"
#include "rfb/WritablePixelBuffer.h"

namespace rfb {

class ImageLoader {
public:
  virtual ~ImageLoader() = default;
  virtual Size getSize() const = 0;
  /// The format of the pixels that load writes; the buffer must have it.
  virtual const PixelFormat& getPf() const = 0;
  /// Writes the image into `buffer` with its top-left corner at `origin`.
  virtual void load(WritablePixelBuffer& buffer, Point origin) = 0;
};

} // namespace rfb
