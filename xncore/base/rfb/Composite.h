// Painting one buffer on another through a per-pixel operation on colours,
// and painting a colour with alpha. Colours with alpha are premultiplied.
#pragma once

#include "rfb/Colour.h"
#include "rfb/PixelBuffer.h"
#include "rfb/WritablePixelBuffer.h"

namespace rfb {

/// An operation of two colours that leaves its result in the second. `k` is
/// the constant opacity of a blend, 0..255; other operations ignore it.
struct CompositeOp {
  using Function = void (*)(const Colour& source, Colour& dest, int k);

  Function function;
  int k;

  void operator()(const Colour& source, Colour& dest) const { function(source, dest, k); }
  friend bool operator==(const CompositeOp& a, const CompositeOp& b) {
    return a.function == b.function && a.k == b.k;
  }
};

namespace compositeFunctions {
void copy(const Colour& source, Colour& dest, int k);
void over(const Colour& source, Colour& dest, int k);
void blend(const Colour& source, Colour& dest, int k);
void premultiply(const Colour& source, Colour& dest, int k);
void unpremultiply(const Colour& source, Colour& dest, int k);
void greyscale(const Colour& source, Colour& dest, int k);
void greyscaleOver(const Colour& source, Colour& dest, int k);
} // namespace compositeFunctions

/// The source colour.
inline constexpr CompositeOp opCopy{compositeFunctions::copy, 0};
/// Source over destination: s + (255 - source alpha) * d / 255, rounded.
inline constexpr CompositeOp opOver{compositeFunctions::over, 0};
/// The source at constant opacity k over the destination.
constexpr CompositeOp opBlend(int k) {
  return {compositeFunctions::blend, k};
}
inline constexpr CompositeOp opBlendHalf = opBlend(127);
/// The source's colour multiplied by its alpha; alpha kept.
inline constexpr CompositeOp opPremultiply{compositeFunctions::premultiply, 0};
/// The source's colour divided by its alpha, rounded; alpha 0 gives black.
inline constexpr CompositeOp opUnpremultiply{compositeFunctions::unpremultiply, 0};
/// The source's luminance in all three channels; alpha kept.
inline constexpr CompositeOp opGreyscale{compositeFunctions::greyscale, 0};
/// The greyscale of the source, painted over the destination.
inline constexpr CompositeOp opGreyscaleOver{compositeFunctions::greyscaleOver, 0};

/// Paints `source` on `dest` within `destRect`: the pixel at p takes the
/// source's pixel at p - sourceOffset. Clipped to both buffers. The two may be
/// the same buffer.
void composite(PixelBuffer& source, Point sourceOffset, WritablePixelBuffer& dest,
               const Rect& destRect, const CompositeOp& operation);

/// Paints `colour` over `rect` of `buffer`, clipped.
void fillComposite(WritablePixelBuffer& buffer, const Rect& rect, const Colour& colour);

} // namespace rfb
