#include "mui/MuImage.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "plat/Assertion.h"
#include "plat/DString.h"
#include "rfb/PixelBuffer.h"

namespace mui {

MuImageFactory muImageFactory = nullptr;

MuImage::MuImage(MuContainer* parent, const char* name) : MuElement(parent, name) {}

MuImage::~MuImage() = default;

MuImage* MuImage::create(MuContainer* parent, const char* name, const char* image,
                         const Size* size) {
  XN_ASSERT(muImageFactory);
  MuImage* element = muImageFactory(parent, name, image, size);
  parent->add(element);
  return element;
}

bool MuImage::setImage(const char* name, const Size* size) {
  MeasurePass::invalidate();
  imageName_ = plat::String(name);
  const bool shown = showNamedImage(name, size ? *size : Size());
  // The supplied pixels go only once nothing shows them any more.
  holder_.reset();
  return shown;
}

void MuImage::setBuffer(rfb::PixelBuffer* buffer, bool own) {
  MeasurePass::invalidate();
  imageName_ = plat::String();
  showBuffer(buffer);
  if (buffer != holder_.get())
    holder_.reset(own ? buffer : nullptr);
  else if (!own)
    static_cast<void>(holder_.release()); // the caller takes the held pixels back
}

int MuImage::minWidth(int) {
  return getImageSize().width;
}

int MuImage::minHeight(int) {
  return getImageSize().height;
}

const char* MuImage::typeName() {
  return "image";
}

plat::String MuImage::describe() {
  plat::DString text(describeCommon().get());
  const Size size = getSize();
  text.appendFormat("element Image\nvalue %s\nimSize %d,%d\n",
                    imageName_.isNull() ? "<unknown>" : imageName_.get(),
                    static_cast<int>(size.width), static_cast<int>(size.height));
  return text.takeString();
}

} // namespace mui
