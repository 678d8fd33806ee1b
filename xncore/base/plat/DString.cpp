#include "plat/DString.h"

#include "plat/Assertion.h"
#include "plat/StringUtils.h"
#include "plat/utf8.h"

#include <cstdio>
#include <cstring>
#include <utility>

namespace plat {

DString::DString(DString&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), capacity_(std::exchange(other.capacity_, 0)) {}

DString& DString::operator=(const DString& other) {
  if (this != &other)
    *this = DString(other);
  return *this;
}

DString& DString::operator=(DString&& other) noexcept {
  if (this != &other) {
    delete[] data_;
    data_ = std::exchange(other.data_, nullptr);
    capacity_ = std::exchange(other.capacity_, 0);
  }
  return *this;
}

DString::~DString() {
  delete[] data_;
}

int DString::length() const noexcept {
  return static_cast<int>(strLen(data_));
}

void DString::ensure(int size) {
  if (size <= capacity_)
    return;
  std::int32_t newCapacity = 8;
  while (newCapacity < size)
    newCapacity *= 2;
  char* block = new char[static_cast<std::size_t>(newCapacity)];
  std::size_t kept = static_cast<std::size_t>(capacity_);
  if (data_)
    std::memcpy(block, data_, kept);
  std::memset(block + kept, 0, static_cast<std::size_t>(newCapacity) - kept);
  delete[] data_;
  data_ = block;
  capacity_ = newCapacity;
}

void DString::append(const char* text, int maxLen) {
  if (!text)
    return;
  int used = length();
  int added = static_cast<int>(strLenMax(text, maxLen));
  ensure(used + added + 1);
  std::memcpy(data_ + used, text, static_cast<std::size_t>(added));
  data_[used + added] = '\0';
}

void DString::appendChar(int codePoint, int count) {
  if (count <= 0)
    return;
  int used = length();
  ensure(used + utf8Length(codePoint) * count + 1);
  char* cursor = data_ + used;
  for (int i = 0; i < count; ++i)
    encodeUtf8(codePoint, cursor);
  *cursor = '\0';
}

void DString::appendFormat(const char* format, ...) {
  va_list args;
  va_start(args, format);
  appendFormatV(format, args);
  va_end(args);
}

void DString::appendFormatV(const char* format, va_list args) {
  if (!format)
    return;
  int used = length();
  int needed = static_cast<int>(std::strlen(format));
  for (;;) {
    ensure(used + needed + 1);
    int room = capacity_ - used;
    va_list attempt;
    va_copy(attempt, args);
    int written = std::vsnprintf(data_ + used, static_cast<std::size_t>(room), format, attempt);
    va_end(attempt);
    if (written >= 0 && written < room)
      return;
    data_[used] = '\0';
    needed = written < 0 ? needed * 2 : written;
  }
}

void DString::truncate(int newLength) noexcept {
  if (data_ && newLength >= 0 && newLength < length())
    data_[newLength] = '\0';
}

String DString::takeString() noexcept {
  return String::adopt(takeBuffer());
}

char* DString::takeBuffer() noexcept {
  capacity_ = 0;
  return std::exchange(data_, nullptr);
}

void DString::replaceAll(const char* from, const char* to) {
  if (!data_)
    return;
  *this = DString(plat::replaceAll(data_, from, to).get());
}

void DString::replaceRange(int begin, int end, const char* text, int maxLen) {
  int used = length();
  if (begin < 0 || end > used || begin > end)
    return;
  int inserted = static_cast<int>(strLenMax(text, maxLen));
  ensure(used - (end - begin) + inserted + 1);
  std::memmove(data_ + begin + inserted, data_ + end, static_cast<std::size_t>(used - end + 1));
  if (inserted > 0)
    std::memcpy(data_ + begin, text, static_cast<std::size_t>(inserted));
}

bool DString::makeValidUtf8() {
  if (!data_ || isValidUtf8(data_))
    return false;
  String repaired = repairUtf8(data_);
  *this = DString(repaired.get());
  return true;
}

void DString::wordWrap(int width, int hangingIndent) {
  if (!data_)
    return;
  String source(data_);
  DString out;
  out.ensure(capacity_);
  const char* cursor = source.get();
  int gap = static_cast<int>(std::strspn(cursor, " "));
  cursor += gap;
  int column = 0;
  for (;;) {
    std::size_t wordBytes = std::strcspn(cursor, " \n");
    int wordWidth = codePointCount(cursor, cursor + wordBytes);
    // An empty word stands before a line feed or the end: its gap is trailing space.
    if (wordBytes > 0) {
      if (gap + wordWidth + column <= width || column < 1) {
        out.appendChar(' ', gap);
        column += gap + wordWidth;
      } else {
        out.append("\n");
        out.appendChar(' ', hangingIndent);
        column = hangingIndent + wordWidth;
      }
      out.append(cursor, static_cast<int>(wordBytes));
    }
    cursor += wordBytes;
    if (*cursor == ' ') {
      gap = static_cast<int>(std::strspn(cursor, " "));
      cursor += gap;
    } else if (*cursor == '\n') {
      out.append("\n");
      ++cursor;
      column = 0;
      gap = 0;
    } else {
      break;
    }
  }
  if (out.isNull())
    out.ensure(1);
  *this = std::move(out);
}

String strFormat(const char* format, ...) {
  va_list args;
  va_start(args, format);
  String result = strFormatV(format, args);
  va_end(args);
  return result;
}

String strFormatV(const char* format, va_list args) {
  DString out;
  out.ensure(1);
  out.appendFormatV(format, args);
  return out.takeString();
}

String replaceAll(const char* text, const char* from, const char* to) {
  std::size_t findLen = strLen(from);
  XN_ASSERT(findLen);
  if (!text)
    return String();
  DString out;
  out.ensure(1);
  for (const char* hit; (hit = std::strstr(text, from)) != nullptr; text = hit + findLen) {
    out.append(text, static_cast<int>(hit - text));
    out.append(to);
  }
  out.append(text);
  return out.takeString();
}

String wrapText(const char* text, int width, int hangingIndent) {
  DString wrapped(text);
  wrapped.wordWrap(width, hangingIndent);
  return text ? wrapped.takeString() : String();
}

const char* appendUntilMarker(DString& out, const char* text, char marker) {
  for (;;) {
    const char* found = std::strchr(text, marker);
    if (!found) {
      out.append(text);
      return nullptr;
    }
    out.append(text, static_cast<int>(found - text));
    if (found[1] != marker)
      return found + 1;
    out.append(found, 1);
    text = found + 2;
  }
}

} // namespace plat
