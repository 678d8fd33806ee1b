#include "xnutil/ScaledImageLoader.h"

#include "plat/Assertion.h"
#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/Scaler.h"

namespace xnutil {

void ScaledImageLoader::load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) {
  rfb::ImageLoader* il = inner_;
  if (size_ == il->getSize()) {
    il->load(buffer, origin);
    return;
  }
  rfb::WritablePixelBuffer* pb = &buffer;
  XN_ASSERT(pb->getPf().equal(il->getPf()));
  rfb::ManagedPixelBuffer unscaled(il->getPf(), rfb::Rect::at({}, il->getSize()),
                                   buffer.getColourMap());
  il->load(unscaled, {});
  Scaler scaler;
  scaler.setDestFormat(buffer.getPf(), buffer.getColourMap());
  scaler.setDestSize(size_);
  scaler.setSource(&unscaled, false);
  int stride = 0;
  std::uint8_t* pixels = buffer.getPixelsRW(rfb::Rect::at(origin, size_), &stride);
  scaler.getImage(pixels, rfb::Rect::at({}, size_), stride);
}

} // namespace xnutil
