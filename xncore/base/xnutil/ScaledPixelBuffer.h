// ScaledPixelBuffer: a read-only buffer that shows another buffer scaled to
// its own size and format. Its pixels are kept in a buffer of its own and
// brought up to date by update, rectangle by rectangle; at the source's own
// size and format it hands out the source's pixels instead.
#pragma once

#include "rfb/Composite.h"
#include "rfb/ManagedPixelBuffer.h"
#include "rfb/PixelBuffer.h"
#include "xnutil/Scaler.h"

namespace xnutil {

class ScaledPixelBuffer : public rfb::PixelBuffer {
public:
  ScaledPixelBuffer() = default;

  /// `source` is not owned. With `adoptFormat` this buffer takes its format
  /// and colour map.
  void setSource(rfb::PixelBuffer* source, bool adoptFormat);
  void setFormat(const rfb::PixelFormat& format, const rfb::ColourMap* colourMap);
  void setSize(rfb::Size size);

  /// Fatal without a source.
  const std::uint8_t* getPixelsR(const rfb::Rect& rect, int* stride) override;
  /// Lets the source refresh the part under `region`, then renders that part
  /// of the scaled image.
  void update(const rfb::Region& region) override;

private:
  struct Scale {
    rfb::Size source;
    rfb::Size dest;
  };

  bool isIdentity() const;
  /// Gives the scaled buffer the present format and size, or no size at all
  /// when the source's own pixels serve.
  void configure();

  rfb::PixelBuffer* source_ = nullptr;
  rfb::ManagedPixelBuffer scaled_;
  Scaler scaler_;
  Scale scale_;
};

/// Paints `sourceRect` of `source` scaled to `destRect` of `dest` through
/// `operation`.
void compositeScaled(rfb::PixelBuffer& source, const rfb::Rect& sourceRect,
                     rfb::WritablePixelBuffer& dest, const rfb::Rect& destRect,
                     const rfb::CompositeOp& operation);

} // namespace xnutil
