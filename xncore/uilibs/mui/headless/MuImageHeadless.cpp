#include "mui/headless/MuImageHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "plat/DString.h"
#include "ui/NamedImage.h"

namespace mui {

MuImageHeadless::MuImageHeadless(MuContainer* parent, const char* name) : MuImage(parent, name) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuImage* MuImageHeadless::make(MuContainer* parent, const char* name, const char* image,
                               const Size* size) {
  auto* element = new MuImageHeadless(parent, name);
  if (image)
    element->setImage(image, size);
  return element;
}

Size MuImageHeadless::getImageSize() {
  return shown_ ? shown_->size() : Size();
}

bool MuImageHeadless::showNamedImage(const char* name, Size size) {
  named_ = ui::getNamedImage(name, size);
  showBuffer(named_.get());
  return shown_ != nullptr;
}

void MuImageHeadless::showBuffer(rfb::PixelBuffer* buffer) {
  shown_ = buffer && buffer->width() > 0 && buffer->height() > 0 ? buffer : nullptr;
  const Size size = getImageSize();
  MuCommonHeadless::of(this)->record(plat::strFormat("showImage %d,%d",
                                                     static_cast<int>(size.width),
                                                     static_cast<int>(size.height))
                                         .get());
}

} // namespace mui
