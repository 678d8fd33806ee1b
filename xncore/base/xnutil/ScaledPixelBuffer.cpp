#include "xnutil/ScaledPixelBuffer.h"

#include "plat/Assertion.h"
#include "rfb/SubPixelBuffer.h"

namespace xnutil {

void ScaledPixelBuffer::setSource(rfb::PixelBuffer* source, bool adoptFormat) {
  source_ = source;
  scale_.source = source ? source->size() : rfb::Size();
  if (source && adoptFormat) {
    format_ = source->getPf();
    colourMap_ = source->getColourMap();
  }
  scaler_.setSource(source, false);
  scaler_.setDestFormat(format_, colourMap_);
  configure();
}

void ScaledPixelBuffer::setFormat(const rfb::PixelFormat& format, const rfb::ColourMap* colourMap) {
  format_ = format;
  colourMap_ = colourMap;
  scaler_.setDestFormat(format_, colourMap_);
  configure();
}

void ScaledPixelBuffer::setSize(rfb::Size size) {
  rect_ = rfb::Rect::at(rect_.tl, size);
  scale_.dest = size;
  scaler_.setDestSize(size);
  configure();
}

bool ScaledPixelBuffer::isIdentity() const {
  return scale_.source == scale_.dest && source_ && source_->getPf() == format_;
}

void ScaledPixelBuffer::configure() {
  scaled_.setPF(format_);
  scaled_.setColourMap(colourMap_);
  if (isIdentity())
    scaled_.setSize(0, 0);
  else
    scaled_.setSize(scale_.dest.width, scale_.dest.height);
}

const std::uint8_t* ScaledPixelBuffer::getPixelsR(const rfb::Rect& rect, int* stride) {
  rfb::PixelBuffer* pb = source_;
  XN_ASSERT(pb);
  if (isIdentity())
    return pb->getPixelsR(rect.translate(pb->getRect().tl).translate(rect_.tl.negate()), stride);
  return scaled_.getPixelsR(rect.translate(rect_.tl.negate()), stride);
}

void ScaledPixelBuffer::update(const rfb::Region& region) {
  if (region.isEmpty() || !source_)
    return;
  const rfb::Rect box = rfb::Rect(region.extents())
                            .translate(rect_.tl.negate())
                            .intersect({{}, {scale_.dest.width, scale_.dest.height}});
  if (box.isEmpty())
    return;
  std::int32_t left, right, top, bottom;
  mapToSource(box.tl.x, box.br.x, scale_.source.width, scale_.dest.width, left, right);
  mapToSource(box.tl.y, box.br.y, scale_.source.height, scale_.dest.height, top, bottom);
  const rfb::Rect sourceArea = rfb::Rect(left, top, right, bottom).translate(source_->getRect().tl);
  source_->update(rfb::Region(rfb::RgnRect(sourceArea)));
  if (isIdentity())
    return;
  int stride = 0;
  std::uint8_t* pixels = scaled_.getPixelsRW(box, &stride);
  scaler_.getImage(pixels, box, stride);
}

void compositeScaled(rfb::PixelBuffer& source, const rfb::Rect& sourceRect,
                     rfb::WritablePixelBuffer& dest, const rfb::Rect& destRect,
                     const rfb::CompositeOp& operation) {
  rfb::SubPixelBuffer window(source, sourceRect);
  ScaledPixelBuffer scaled;
  scaled.setSource(&window, true);
  scaled.setSize(destRect.size());
  scaled.update(rfb::Region(rfb::Rect({}, {destRect.width(), destRect.height()})));
  rfb::composite(scaled, destRect.tl, dest, destRect, operation);
}

} // namespace xnutil
