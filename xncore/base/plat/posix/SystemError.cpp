#include "plat/SystemError.h"

#include <string.h>

#include "plat/StringUtils.h"

namespace plat {

namespace {

// glibc offers two strerror_r: the GNU one returns a pointer that may or may
// not be `buffer`, the XSI one fills `buffer` and returns a status.
[[maybe_unused]] void finish(char* result, char* buffer, std::size_t size) {
  if (result != buffer)
    strCopy(buffer, result, size);
}

[[maybe_unused]] void finish(int status, char* buffer, std::size_t size) {
  if (status != 0)
    strCopy(buffer, "Unknown error", size);
}

} // namespace

void systemErrorText(int code, char* buffer, std::size_t size) noexcept {
  if (size == 0)
    return;
  buffer[0] = '\0';
  finish(strerror_r(code, buffer, size), buffer, size);
}

void libraryErrorText(int code, char* buffer, std::size_t size) noexcept {
  systemErrorText(code, buffer, size);
}

} // namespace plat
