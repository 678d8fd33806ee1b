// Solid drawing and pixel copies on any writable buffer. Everything is clipped
// to the buffer, and solid drawing takes a pixel value already packed in the
// buffer's format. A pixel size other than 1 to 4 bytes writes nothing.
#pragma once

#include "rfb/Colour.h"
#include "rfb/PixelBuffer.h"
#include "rfb/Region.h"
#include "rfb/WritablePixelBuffer.h"

#include <cstdint>

namespace rfb {

void fillRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t pixel);
/// The four edges of `rect`, each `width` pixels thick.
void frameRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t pixel, int width);
/// The outline of `rect` with quarter-circle corners; the radius is held to
/// half the width and half the height.
void roundRect(WritablePixelBuffer& buffer, const Rect& rect, int radius, std::uint32_t pixel);
/// A straight line without its last pixel.
void drawLine(WritablePixelBuffer& buffer, Point from, Point to, std::uint32_t pixel);
/// Every pixel XORed with `mask`.
void invertRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t mask);
/// Rows from top to bottom, each row's colour interpolated between `top` and
/// `bottom` and rounded to nearest; a single row takes `top`.
void gradientRect(WritablePixelBuffer& buffer, const Rect& rect, const Colour& top,
                  const Colour& bottom);
/// Paints `pixel` where a 1-bit mask has a 1, bits running from the most
/// significant. The mask bit of rect's top-left pixel is at `maskOffset`; a
/// `maskStride` of 0 means (rect's width + 7) / 8 bytes.
void maskRect(WritablePixelBuffer& buffer, const Rect& rect, std::uint32_t pixel,
              const std::uint8_t* mask, int maskStride, Point maskOffset);

/// Copies rows of raw pixels of the buffer's format into `rect`; a `stride`
/// of 0 means the width of `rect`, however much of it is clipped.
void imageRect(WritablePixelBuffer& buffer, const Rect& rect, const void* pixels, int stride);
/// As imageRect with the source turned clockwise by 0 to 3 quarter turns; for
/// an odd number it is rect's height wide, and a stride of 0 means its width.
void imageRectRotated(WritablePixelBuffer& buffer, const Rect& rect, const void* pixels, int stride,
                      int quarterTurns);
/// As maskRect, copying the source pixel where the mask has a 1.
void maskImageRect(WritablePixelBuffer& buffer, const Rect& rect, const void* pixels,
                   const std::uint8_t* mask, int pixelStride, int maskStride, Point maskOffset);
/// Repeats `source`, of dest's format, over each rectangle of `region`, with
/// a copy's top-left corner at `offset`.
void tileRect(PixelBuffer& source, Point offset, WritablePixelBuffer& dest, const Region& region);
/// Moves the pixels that land in `rect` by `delta` within the buffer; source
/// and destination may overlap.
void copyRect(WritablePixelBuffer& buffer, const Rect& rect, Point delta);
/// copyRect for each rectangle of `region`, those farthest along the move
/// first, so that no rectangle overwrites a source still to be read.
void copyRegion(WritablePixelBuffer& buffer, const Region& region, Point delta);

} // namespace rfb
