// A pixel buffer whose pixels can be written in place; reading goes through
// the same address.
#pragma once

#include "rfb/PixelBuffer.h"

namespace rfb {

class WritablePixelBuffer : public PixelBuffer {
public:
  /// As getPixelsR, writable.
  virtual std::uint8_t* getPixelsRW(const Rect& rect, int* stride) = 0;
  const std::uint8_t* getPixelsR(const Rect& rect, int* stride) override {
    return getPixelsRW(rect, stride);
  }

protected:
  using PixelBuffer::PixelBuffer;
};

} // namespace rfb
