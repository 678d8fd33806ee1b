// A full-frame buffer whose format, size and colour map can change after it
// was made. Whether a change of size keeps the pixels that both sizes share
// is preservePixels_, on at first.
#pragma once

#include "rfb/FullFramePixelBuffer.h"

namespace rfb {

class ConfigurablePixelBuffer : public FullFramePixelBuffer {
public:
  /// A different format clears the pixels; they are not converted.
  virtual void setPF(const PixelFormat& format) = 0;
  /// Keeps the origin; the pixels of the common part survive when
  /// preservePixels_ is set, the rest is zero.
  virtual void setSize(int width, int height) = 0;
  virtual void setColourMap(const ColourMap* colourMap) { colourMap_ = colourMap; }

  void setPreservePixels(bool preserve) { preservePixels_ = preserve; }

protected:
  using FullFramePixelBuffer::FullFramePixelBuffer;

  bool preservePixels_ = true;
};

} // namespace rfb
