#include "rfb/ManagedPixelBuffer.h"

#include "plat/Assertion.h"
#include "rfb/Drawing.h"

#include <cstring>
#include <vector>

namespace rfb {

ManagedPixelBuffer::ManagedPixelBuffer(const PixelFormat& format, const Rect& rect,
                                       const ColourMap* colourMap) {
  format_ = format;
  rect_ = rect;
  colourMap_ = colourMap;
  checkAllocation();
  clear();
}

ManagedPixelBuffer::ManagedPixelBuffer(PixelBuffer& other) {
  format_ = other.getPf();
  rect_ = other.getRect();
  colourMap_ = other.getColourMap();
  checkAllocation();
  other.getImage(data_, rect_, stride_);
}

std::size_t ManagedPixelBuffer::sizeBytes() const {
  if (rect_.isEmpty())
    return 0;
  return std::size_t(rect_.width()) * std::size_t(rect_.height()) * format_.bytesPerPixel();
}

void ManagedPixelBuffer::checkAllocation() {
  stride_ = rect_.width();
  const std::size_t size = sizeBytes();
  if (size == 0) {
    block_.reset();
    capacity_ = 0;
  } else if (size > capacity_) {
    const Rect& rect = rect_;
    XN_ASSERT(Rect(RgnRect(rect)) == rect);
    block_.reset();
    block_ = std::make_unique<std::uint8_t[]>(size);
    capacity_ = size;
  }
  XN_ASSERT(capacity_ >= sizeBytes());
  data_ = block_.get();
}

void ManagedPixelBuffer::clear() {
  if (data_)
    std::memset(data_, 0, sizeBytes());
}

void ManagedPixelBuffer::setPF(const PixelFormat& format) {
  if (format == format_)
    return;
  format_ = format;
  checkAllocation();
  clear();
}

void ManagedPixelBuffer::setSize(int width, int height) {
  if (width == rect_.width() && height == rect_.height())
    return;
  // The part both sizes share is set aside, since the new rows may land where
  // the old ones still are.
  const Rect next = Rect::at(rect_.tl, {width, height});
  const Rect common = preservePixels_ ? next.intersect(rect_) : Rect();
  std::vector<std::uint8_t> kept;
  if (!common.isEmpty()) {
    kept.resize(std::size_t(common.width()) * common.height() * format_.bytesPerPixel());
    getImage(kept.data(), common);
  }
  rect_ = next;
  checkAllocation();
  clear();
  if (!kept.empty())
    imageRect(*this, common, kept.data(), 0);
}

} // namespace rfb
