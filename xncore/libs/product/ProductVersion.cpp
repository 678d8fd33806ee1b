#include "product/ProductVersion.h"

#include "plat/String.h"

namespace product {

namespace {

plat::String& storedVersion() {
  static plat::String version;
  return version;
}

plat::String& storedBuildVersion() {
  static plat::String version;
  return version;
}

void replaceIfDifferent(plat::String& stored, const char* text) {
  if (plat::compare(stored.get(), text) != 0)
    stored = plat::String(text);
}

} // namespace

void setProductVersion(const char* displayVersion, const char* numericVersion) {
  replaceIfDifferent(storedVersion(), displayVersion);
  replaceIfDifferent(storedBuildVersion(), numericVersion);
}

const char* productVersion() noexcept {
  return storedVersion().get();
}

const char* productBuildVersion() noexcept {
  return storedBuildVersion().get();
}

void giveProductVersionDefaults() {
  if (storedVersion().isNull())
    storedVersion() = plat::String("0.1");
  if (storedBuildVersion().isNull())
    storedBuildVersion() = storedVersion();
}

const char* productBuildDate() noexcept {
  return __DATE__ " " __TIME__;
}

} // namespace product
