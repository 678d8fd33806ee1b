#include "rfb/FullFramePixelBuffer.h"

#include "rfb/PixelCodec.h"

namespace rfb {

FullFramePixelBuffer::FullFramePixelBuffer(const PixelFormat& format, const Rect& rect,
                                           const ColourMap* colourMap, std::uint8_t* data,
                                           int stride)
    : WritablePixelBuffer(format, rect, colourMap), data_(data),
      stride_(stride ? stride : rect.width()) {}

FullFramePixelBuffer::FullFramePixelBuffer(FullFramePixelBuffer& source, const Rect& area)
    : WritablePixelBuffer(source.format_, {}, source.colourMap_), stride_(source.stride_) {
  const Rect clipped = area.intersect(source.rect_);
  rect_ = clipped.translate(area.tl.negate());
  data_ = clipped.isEmpty() ? nullptr : source.getPixelsRW(clipped, nullptr);
}

std::uint8_t* FullFramePixelBuffer::getPixelsRW(const Rect& rect, int* stride) {
  if (stride)
    *stride = stride_;
  if (rect.isEmpty())
    return nullptr;
  checkEncloses(rect_, rect, "getPixelsRW");
  const std::ptrdiff_t offset =
      (std::ptrdiff_t{rect.tl.y - rect_.tl.y} * stride_ + rect.tl.x - rect_.tl.x) *
      format_.bytesPerPixel();
  return data_ + offset;
}

std::uint32_t FullFramePixelBuffer::getPixel(Point p) const {
  const std::ptrdiff_t offset =
      (std::ptrdiff_t{p.y - rect_.tl.y} * stride_ + p.x - rect_.tl.x) * format_.bytesPerPixel();
  return loadPixel(data_ + offset, format_.bytesPerPixel());
}

} // namespace rfb
