#include "xnutil/NamedImageLoader.h"

#include "plat/DString.h"
#include "xnutil/BuiltinResources.h"
#include "xnutil/DisplayScale.h"
#include "xnutil/ScaledImageLoader.h"

namespace xnutil {

bool NamedImageLoader::BuiltinFinder::load(const char* name) {
  plat::DString file;
  file.appendFormat("%s.png", name);
  const BuiltinResource resource = findBuiltinResource(file.get());
  if (!resource.data || resource.length == 0)
    return false;
  loader_ = std::make_unique<PngFile>(resource.data, resource.length, premultiply_, file.get());
  return true;
}

NamedImageLoader::NamedImageLoader(const char* name, rfb::Size size, bool premultiply)
    : finder_(premultiply), size_(size) {
  findNamedImage(finder_, name, size_, displayScale());
}

void NamedImageLoader::load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) {
  if (finder_.loader_->getSize() == size_) {
    finder_.loader_->load(buffer, origin);
    return;
  }
  ScaledImageLoader scaled(*finder_.loader_, size_);
  scaled.load(buffer, origin);
}

void loadNamedImage(rfb::ConfigurablePixelBuffer& buffer, const char* name, rfb::Size size,
                    bool premultiply) {
  NamedImageLoader loader(name, size, premultiply);
  buffer.setPF(loader.getPf());
  buffer.setSize(loader.getSize().width, loader.getSize().height);
  loader.load(buffer, {});
}

} // namespace xnutil
