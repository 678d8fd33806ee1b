// mui::MuImage: a picture in a form: a named image of the program, chosen and
// scaled for the display's density, or pixels that the caller supplies. It
// measures the picture's own size and shows it in the middle of its area, on
// the background of whatever holds it.
#pragma once

#include "mui/MuElement.h"

#include <memory>

namespace rfb {
class PixelBuffer;
}

namespace mui {

class MuImage : public MuElement {
public:
  /// A null `size` takes the image's own size at the display's density.
  static MuImage* create(MuContainer* parent, const char* name, const char* image,
                         const Size* size);

  /// Shows the named image, scaled to `size` when one is given; true when
  /// there is something to show. An unknown name shows nothing.
  virtual bool setImage(const char* name, const Size* size);
  /// Shows `buffer`'s pixels, owned by the element when `own`, and forgets
  /// the image's name. Null shows nothing.
  virtual void setBuffer(rfb::PixelBuffer* buffer, bool own);
  /// The size of what is shown; (0, 0) for nothing.
  virtual Size getImageSize() = 0;

  /// The name shown; null for supplied pixels or nothing.
  const char* imageName() const noexcept { return imageName_.get(); }

  /// The image's own width, whatever the height.
  int minWidth(int height) override;
  /// The image's own height, whatever the width.
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;

  ~MuImage() override;

protected:
  MuImage(MuContainer* parent, const char* name);

  /// Binding: fetches the named image at `size` (0 x 0: its own size) and
  /// shows it; true when it isn't empty.
  virtual bool showNamedImage(const char* name, Size size) = 0;
  /// Binding: shows `buffer`, which stays valid while it is shown; null for nothing.
  virtual void showBuffer(rfb::PixelBuffer* buffer) = 0;

private:
  plat::String imageName_;
  std::unique_ptr<rfb::PixelBuffer> holder_;
};

/// The hook through which MuImage::create makes the binding's image.
using MuImageFactory = MuImage* (*)(MuContainer* parent, const char* name, const char* image,
                                    const Size* size);
extern MuImageFactory muImageFactory;

} // namespace mui
