// Anything that can hand out the pixels of a rectangle: a pixel buffer, or a
// scaler that computes them on request.
#pragma once

#include "rfb/Rect.h"

namespace rfb {

class ImageGetter {
public:
  virtual ~ImageGetter() = default;
  /// Copies the pixels of `rect` into `dest`, whose rows are `destStride`
  /// pixels apart; 0 means the width of `rect`.
  virtual void getImage(void* dest, const Rect& rect, int destStride = 0) = 0;
};

} // namespace rfb
