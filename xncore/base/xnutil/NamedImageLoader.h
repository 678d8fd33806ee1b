// NamedImageLoader: the image of a name at a size, from the program's built-in
// PNG files. The choice is made when the loader is made (see findNamedImage);
// loading scales the chosen image when its size isn't the one asked for.
#pragma once

#include "rfb/ConfigurablePixelBuffer.h"
#include "rfb/ImageLoader.h"
#include "xnutil/NamedImageFinder.h"
#include "xnutil/PngFile.h"

#include <memory>

namespace xnutil {

class NamedImageLoader : public rfb::ImageLoader {
public:
  /// A `size` of 0 x 0 takes the image's own size at the display scale. Raises
  /// NamedImageNotFound, NamedImageBadSize or PngException.
  NamedImageLoader(const char* name, rfb::Size size, bool premultiply);

  /// The size the image is delivered at.
  rfb::Size getSize() const override { return size_; }
  const rfb::PixelFormat& getPf() const override { return finder_.loader_->getPf(); }
  void load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) override;

private:
  /// Looks the images up among the built-in resources and keeps the last found.
  struct BuiltinFinder : NamedImageFinder {
    explicit BuiltinFinder(bool premultiply) : premultiply_(premultiply) {}
    bool load(const char* name) override;
    rfb::Size getSize() const override { return loader_->getSize(); }
    bool hasImage() const override { return loader_ != nullptr; }

    std::unique_ptr<PngFile> loader_;
    bool premultiply_;
  };

  BuiltinFinder finder_;
  rfb::Size size_;
};

/// Makes `buffer` hold the image of `name` at `size` (0 x 0: its own size at
/// the display scale), in the image's format, at 0,0. Raises as the loader does.
void loadNamedImage(rfb::ConfigurablePixelBuffer& buffer, const char* name, rfb::Size size,
                    bool premultiply);

} // namespace xnutil
