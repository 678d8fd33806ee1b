// A read-only window on part of another buffer, with its own origin at 0,0.
#pragma once

#include "rfb/PixelBuffer.h"

namespace rfb {

class SubPixelBuffer : public PixelBuffer {
public:
  /// Shows `area` of `source`, clipped to it; the origin of `area` becomes 0,0.
  /// `source` must outlive the window.
  SubPixelBuffer(PixelBuffer& source, const Rect& area);

  const std::uint8_t* getPixelsR(const Rect& rect, int* stride) override;

private:
  PixelBuffer* source_;
  Point offset_;
};

} // namespace rfb
