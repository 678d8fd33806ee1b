// An image loader that delivers another loader's image at a size of its own,
// scaled by area averaging when the sizes differ.
#pragma once

#include "rfb/ImageLoader.h"

namespace xnutil {

class ScaledImageLoader : public rfb::ImageLoader {
public:
  /// `inner` is not owned and must outlive the loader.
  ScaledImageLoader(rfb::ImageLoader& inner, rfb::Size size) : inner_(&inner), size_(size) {}

  rfb::Size getSize() const override { return size_; }
  const rfb::PixelFormat& getPf() const override { return inner_->getPf(); }
  /// The buffer's format must be the inner loader's.
  void load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) override;

private:
  rfb::ImageLoader* inner_;
  rfb::Size size_;
};

} // namespace xnutil
