// A writable buffer over one block of memory: data_ is the pixel at rect_'s top
// left, rows are stride_ pixels apart. The memory belongs to whoever made the
// buffer; a second buffer may share a sub-rectangle of another's pixels.
#pragma once

#include "rfb/WritablePixelBuffer.h"

#include <cstdint>

namespace rfb {

class FullFramePixelBuffer : public WritablePixelBuffer {
public:
  /// A `stride` of 0 means the width of `rect`.
  FullFramePixelBuffer(const PixelFormat& format, const Rect& rect, const ColourMap* colourMap,
                       std::uint8_t* data, int stride);
  /// Shares the pixels of `area` of `source`, clipped to it. The origin of
  /// `area` becomes 0,0, so a clipped top-left corner lies further in.
  FullFramePixelBuffer(FullFramePixelBuffer& source, const Rect& area);

  std::uint8_t* getPixelsRW(const Rect& rect, int* stride) override;
  /// The raw value of one pixel inside the buffer; 0 for a size other than 1 to 4 bytes.
  std::uint32_t getPixel(Point p) const;
  int getStride() const { return stride_; }

protected:
  FullFramePixelBuffer() = default;

  std::uint8_t* data_ = nullptr;
  std::int32_t stride_ = 0;
};

} // namespace rfb
