#include "plat/CatalogText.h"

namespace plat {

namespace {

const char* keyAsText(const char* key, const char*, int) {
  return key;
}

String keyAsFormat(const char* key, const char*, const char*, int) {
  return String(key);
}

// Set once, during static initialisation, before any thread exists.
CatalogReader reader{&keyAsText, &keyAsFormat};

} // namespace

void setCatalogReader(const CatalogReader& newReader) noexcept {
  reader = newReader;
}

const char* catalogText(const char* key, const char* file, int line) {
  return reader.text(key, file, line);
}

String catalogFormat(const char* key, const char* argument, const char* file, int line) {
  return reader.format(key, argument, file, line);
}

} // namespace plat
