// PixelBuffer: pixels of one format exposed through rectangles, read-only. The
// buffer covers rect_ in its own coordinates, normally with its origin at 0,0.
// Writable, full-frame, configurable and managed buffers derive from it; the
// drawing, compositing and scaling routines work on any of them.
#pragma once

#include "rfb/ColourMap.h"
#include "rfb/ImageGetter.h"
#include "rfb/PixelFormat.h"
#include "rfb/Rect.h"
#include "rfb/Region.h"

#include <cstdint>

namespace rfb {

class PixelBuffer : public ImageGetter {
public:
  /// Copies row by row from getPixelsR.
  void getImage(void* dest, const Rect& rect, int destStride = 0) override;

  virtual const ColourMap* getColourMap() const { return colourMap_; }
  /// The address of `rect`'s top-left pixel; the row length in pixels goes to
  /// `stride` when it isn't null. An empty `rect` gives null; one the buffer
  /// does not enclose is a fatal assertion.
  virtual const std::uint8_t* getPixelsR(const Rect& rect, int* stride) = 0;
  /// Tells the buffer that `region` of what it shows may have changed; a buffer
  /// that derives its pixels from another refreshes them.
  virtual void update(const Region& region);
  /// Memory shared with other processes, or null.
  virtual void* getSharedMem() { return nullptr; }

  const PixelFormat& getPf() const { return format_; }
  const Rect& getRect() const { return rect_; }
  Size size() const { return rect_.size(); }
  std::int32_t width() const { return rect_.width(); }
  std::int32_t height() const { return rect_.height(); }

protected:
  PixelBuffer() = default;
  PixelBuffer(const PixelFormat& format, const Rect& rect, const ColourMap* colourMap)
      : format_(format), rect_(rect), colourMap_(colourMap) {}

  /// The fatal assertion "rect.encloses(r)" with "<operation> out of bounds: r outside rect".
  static void checkEncloses(const Rect& rect, const Rect& r, const char* operation);

  PixelFormat format_;
  Rect rect_;
  const ColourMap* colourMap_ = nullptr;
};

} // namespace rfb
