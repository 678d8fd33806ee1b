#include "ui/NamedImage.h"

#include "plat/DString.h"
#include "plat/LogSrc.h"
#include "plat/String.h"
#include "plat/SysColors.h"
#include "xnutil/DisplayScale.h"
#include "xnutil/ImageExceptions.h"
#include "xnutil/NamedImageLoader.h"

#include <map>

namespace ui {

namespace {

plat::LogSrc imageLog("NamedImageWin");

struct NameLess {
  bool operator()(const plat::String& a, const plat::String& b) const {
    return plat::compare(a.get(), b.get()) < 0;
  }
};

/// Every image made, by name; nothing is ever removed.
std::multimap<plat::String, std::shared_ptr<NamedImage>, NameLess>& cache() {
  static std::multimap<plat::String, std::shared_ptr<NamedImage>, NameLess> images;
  return images;
}

void logFailure(int level, const plat::Exception& e) {
  if (*e.type())
    imageLog.write(level, "[%s] %s", e.type(), e.what());
  else
    imageLog.write(level, "%s", e.what());
}

std::shared_ptr<NamedImage> cached(const char* name, rfb::Size size, bool logFailures) {
  const plat::String key(name);
  const auto [first, last] = cache().equal_range(key);
  for (auto it = first; it != last; ++it) {
    const NamedImage& image = *it->second;
    const bool found = size == rfb::Size()
                           ? image.isAutoSize() && image.scale() == xnutil::displayScale()
                           : image.size() == size;
    if (found)
      return it->second;
  }
  auto image = std::make_shared<NamedImage>(name, size, logFailures);
  cache().emplace(key, image);
  return image;
}

} // namespace

NamedImage::NamedImage(const char* name, rfb::Size size, bool logFailures)
    : autoSize_(size == rfb::Size()), scale_(xnutil::displayScale()) {
  if (!name || !*name)
    return;
  try {
    xnutil::loadNamedImage(*this, name, size, true);
  } catch (const xnutil::NamedImageBadSize& e) {
    logFailure(plat::LogSrc::levelError, e);
    setSize(0, 0);
  } catch (const plat::Exception& e) {
    if (logFailures)
      logFailure(plat::LogSrc::levelDebug, e);
    setSize(0, 0);
  }
}

std::shared_ptr<NamedImage> getNamedImage(const char* name, rfb::Size size) {
  return cached(name, size, true);
}

std::shared_ptr<NamedImage> getNamedImage(const char* name, rfb::Size size, bool useDarkVariant) {
  plat::SysColors* colours = plat::SysColors::provider();
  if (useDarkVariant && colours && colours->isDark() && name) {
    plat::DString dark;
    dark.appendFormat("%s_darkbg", name);
    std::shared_ptr<NamedImage> image = cached(dark.get(), size, false);
    if (!image->getRect().isEmpty())
      return image;
  }
  return getNamedImage(name, size);
}

} // namespace ui
