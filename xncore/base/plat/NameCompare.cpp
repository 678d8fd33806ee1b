#include "plat/NameCompare.h"

namespace plat {

namespace {

unsigned char foldAscii(char ch) noexcept {
  auto byte = static_cast<unsigned char>(ch);
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

bool sameChar(char a, char b, bool caseSensitive) noexcept {
  return caseSensitive ? a == b : foldAscii(a) == foldAscii(b);
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

bool matchPattern(const char* pattern, const char* text, bool caseSensitive) noexcept {
  if (!pattern || !text)
    return false;
  // Backtracking only to the latest "*" gives the answer of trying every
  // split at every star: an earlier star can never do better than letting the
  // latest one take more. The work stays within the product of the lengths,
  // where a full recursive search grows with each star.
  const char* star = nullptr;
  const char* resume = nullptr;
  while (*text) {
    if (*pattern == '*') {
      star = ++pattern;
      resume = text;
    } else if (*pattern && sameChar(*pattern, *text, caseSensitive)) {
      ++pattern;
      ++text;
    } else if (star) {
      pattern = star;
      text = ++resume;
    } else {
      return false;
    }
  }
  while (*pattern == '*')
    ++pattern;
  return *pattern == '\0';
}

} // namespace plat
