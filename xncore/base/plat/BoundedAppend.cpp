#include "plat/BoundedAppend.h"

#include <cstdio>
#include <cstring>

#include "plat/StringUtils.h"
#include "plat/utf8.h"

namespace plat {

namespace {

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Number of bytes that the sequence started by `lead` claims, 0 for a byte that
// starts none.
int sequenceLength(unsigned char lead) {
  if ((lead & 0xE0) == 0xC0)
    return 2;
  if ((lead & 0xF0) == 0xE0)
    return 3;
  if ((lead & 0xF8) == 0xF0)
    return 4;
  return 0;
}

// After a cut at buffer[length], drops a last character whose sequence runs
// past the cut.
void mendCut(char* buffer, std::size_t length) {
  std::size_t stop = length > 4 ? length - 4 : 0;
  for (std::size_t i = length; i > stop; --i) {
    auto byte = static_cast<unsigned char>(buffer[i - 1]);
    if (isContinuation(byte))
      continue;
    int needed = sequenceLength(byte);
    if (needed > 0 && i - 1 + static_cast<std::size_t>(needed) > length)
      buffer[i - 1] = '\0';
    return;
  }
}

} // namespace

void appendBounded(char* buffer, std::size_t size, const char* text, int maxLen) {
  if (!text || size == 0)
    return;
  std::size_t used = strLenMax(buffer, static_cast<int>(size - 1));
  std::size_t wanted = strLenMax(text, maxLen);
  std::size_t room = size - 1 - used;
  std::size_t taken = wanted < room ? wanted : room;
  std::memcpy(buffer + used, text, taken);
  buffer[used + taken] = '\0';
  if (taken < wanted)
    mendCut(buffer, used + taken);
}

void appendBoundedFormat(char* buffer, std::size_t size, const char* format, ...) {
  va_list args;
  va_start(args, format);
  appendBoundedFormatV(buffer, size, format, args);
  va_end(args);
}

void appendBoundedFormatV(char* buffer, std::size_t size, const char* format, va_list args) {
  if (!format || size == 0)
    return;
  std::size_t used = strLenMax(buffer, static_cast<int>(size - 1));
  std::size_t room = size - used;
  int written = std::vsnprintf(buffer + used, room, format, args);
  if (written >= 0 && static_cast<std::size_t>(written) >= room)
    mendCut(buffer, size - 1);
}

void appendBoundedChar(char* buffer, std::size_t size, int codePoint, int count) {
  if (size == 0 || count <= 0 || codePoint < 0 || codePoint > maxCodePoint)
    return;
  std::size_t used = strLenMax(buffer, static_cast<int>(size - 1));
  std::size_t width = static_cast<std::size_t>(utf8Length(codePoint));
  if (width == 0)
    return;
  std::size_t fitting = (size - 1 - used) / width;
  if (fitting < static_cast<std::size_t>(count))
    count = static_cast<int>(fitting);
  char* cursor = buffer + used;
  for (int i = 0; i < count; ++i)
    encodeUtf8(codePoint, cursor);
  *cursor = '\0';
}

} // namespace plat
