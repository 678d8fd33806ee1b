// mui::MuImageQt: the image of the Qt binding, a plain widget that paints the
// pixels in its middle, on the background of whatever holds it. Named images
// and buffers in one of Qt's layouts are painted from their own memory.
#pragma once

#include "mui/MuImage.h"

#include <memory>

namespace ui {
class NamedImage;
}

namespace mui {

class MuImageQt : public MuImage {
public:
  static MuImage* make(MuContainer* parent, const char* name, const char* image, const Size* size);

  Size getImageSize() override;

protected:
  bool showNamedImage(const char* name, Size size) override;
  void showBuffer(rfb::PixelBuffer* buffer) override;

private:
  MuImageQt(MuContainer* parent, const char* name);

  std::shared_ptr<ui::NamedImage> named_;
};

} // namespace mui
