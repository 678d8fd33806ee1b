#include "rfb/PixelBuffer.h"

#include "plat/Assertion.h"

#include <cstring>

namespace rfb {

void PixelBuffer::getImage(void* dest, const Rect& rect, int destStride) {
  if (rect.isEmpty())
    return;
  int stride = 0;
  const std::uint8_t* source = getPixelsR(rect, &stride);
  const std::size_t bytes = format_.bytesPerPixel();
  const std::size_t rowBytes = bytes * rect.width();
  const std::size_t destRow = bytes * (destStride ? destStride : rect.width());
  auto* out = static_cast<std::uint8_t*>(dest);
  for (std::int32_t y = 0; y < rect.height(); ++y)
    std::memcpy(out + y * destRow, source + y * bytes * stride, rowBytes);
}

void PixelBuffer::update(const Region&) {}

void PixelBuffer::checkEncloses(const Rect& rect, const Rect& r, const char* operation) {
  if (!rect.encloses(r))
    plat::assertionFailed(plat::AssertionFail("rect.encloses(r)", __FILE__, __LINE__)
                              .addDetail("%s out of bounds: %s outside %s", operation,
                                         toString(r).get(), toString(rect).get()));
}

} // namespace rfb
