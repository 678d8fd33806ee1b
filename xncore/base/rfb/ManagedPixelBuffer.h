// The configurable buffer that owns its pixels. The block grows when the
// image does and is kept when it shrinks; an empty image holds none.
#pragma once

#include "rfb/ConfigurablePixelBuffer.h"

#include <cstddef>
#include <memory>

namespace rfb {

class ManagedPixelBuffer : public ConfigurablePixelBuffer {
public:
  /// The default format and an empty rectangle.
  ManagedPixelBuffer() = default;
  /// Allocates at once; the pixels start at zero.
  ManagedPixelBuffer(const PixelFormat& format, const Rect& rect,
                     const ColourMap* colourMap = nullptr);
  /// A copy of `other`'s format, rectangle, colour map and pixels.
  explicit ManagedPixelBuffer(PixelBuffer& other);
  ManagedPixelBuffer(const ManagedPixelBuffer&) = delete;
  ManagedPixelBuffer& operator=(const ManagedPixelBuffer&) = delete;

  void setPF(const PixelFormat& format) override;
  void setSize(int width, int height) override;

  /// Bytes allocated.
  std::size_t capacity() const { return capacity_; }

private:
  std::size_t sizeBytes() const;
  /// Sets the stride and makes sure the block holds the image.
  void checkAllocation();
  void clear();

  std::unique_ptr<std::uint8_t[]> block_;
  std::size_t capacity_ = 0;
};

} // namespace rfb
