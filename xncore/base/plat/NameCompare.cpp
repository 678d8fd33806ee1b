#include "plat/NameCompare.h"

namespace plat {

namespace {

unsigned char foldAscii(char ch) noexcept {
  auto byte = static_cast<unsigned char>(ch);
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

} // namespace

int compareNoCase(const char* a, const char* b) noexcept {
  if (!a || !b)
    return (a ? 1 : 0) - (b ? 1 : 0);
  for (;; ++a, ++b) {
    unsigned char x = foldAscii(*a);
    unsigned char y = foldAscii(*b);
    if (x != y || x == 0)
      return x - y;
  }
}

} // namespace plat
