#include "rfb/SubPixelBuffer.h"

namespace rfb {

SubPixelBuffer::SubPixelBuffer(PixelBuffer& source, const Rect& area)
    : PixelBuffer(source.getPf(), area.intersect(source.getRect()).translate(area.tl.negate()),
                  source.getColourMap()),
      source_(&source), offset_(area.tl) {}

const std::uint8_t* SubPixelBuffer::getPixelsR(const Rect& rect, int* stride) {
  if (!rect.isEmpty())
    checkEncloses(rect_, rect, "getPixelsR");
  return source_->getPixelsR(rect.translate(offset_), stride);
}

} // namespace rfb
