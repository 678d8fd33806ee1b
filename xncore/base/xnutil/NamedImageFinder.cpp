#include "xnutil/NamedImageFinder.h"

#include "plat/DString.h"
#include "xnutil/DisplayScale.h"
#include "xnutil/ImageExceptions.h"

namespace xnutil {

namespace {

constexpr int singleDensity = 4;
constexpr int doubleDensity = 8;

bool loadDouble(NamedImageFinder& finder, const char* name) {
  plat::DString doubled;
  doubled.appendFormat("%s_2x", name);
  return finder.load(doubled.get());
}

} // namespace

void findNamedImage(NamedImageFinder& finder, const char* name, rfb::Size& size, int scale) {
  if (size == rfb::Size()) {
    if (finder.load(name)) {
      size = singleDensitySize(finder.getSize(), scale);
      if (scale == singleDensity)
        return;
    }
    if (loadDouble(finder, name)) {
      const rfb::Size doubled = doubleDensitySize(finder.getSize(), scale);
      if (size != rfb::Size() && size != doubled)
        throw NamedImageBadSize("Badly sized image '%s': @2x/@1x images differ", name);
      size = doubled;
      if (scale == doubleDensity)
        return;
    }
    if (size == rfb::Size())
      throw NamedImageNotFound("Bad image name '%s'", name);
  }

  plat::DString exact;
  exact.appendFormat("%s%dx%d", name, size.width, size.height);
  if (finder.load(exact.get())) {
    if (finder.getSize() != size)
      throw NamedImageBadSize("Badly sized image '%s%dx%d'", name, size.width, size.height);
    return;
  }
  if (finder.load(name) && finder.getSize().width >= size.width)
    return;
  // A single-density image too small for the size stands only when nothing
  // better exists.
  loadDouble(finder, name);
  if (!finder.hasImage())
    throw NamedImageNotFound("Bad image name '%s'", name);
}

} // namespace xnutil
