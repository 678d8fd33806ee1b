#include "plat/utf8.h"

#include "plat/DString.h"
#include "plat/Exception.h"

#include <cstring>

namespace plat {

namespace {

constexpr int euroSign = 0x20AC;
constexpr unsigned char latin1Euro = 0x80;

const char* endOf(const char* begin, const char* end) {
  return end ? end : begin + std::strlen(begin);
}

int available(const char* cursor, const char* end) {
  std::ptrdiff_t left = end - cursor;
  return left > 4 ? 4 : static_cast<int>(left);
}

bool isNoncharacterOrSurrogate(int value) {
  return (value >= 0xD800 && value <= 0xDFFF) || (value >= 0xFDD0 && value <= 0xFDEF) ||
         (value & 0xFFFE) == 0xFFFE;
}

} // namespace

int utf8Length(int codePoint) {
  if (codePoint < 0x80)
    return 1;
  if (codePoint < 0x800)
    return 2;
  if (codePoint < 0x10000)
    return 3;
  if (codePoint <= 0x10FFFFF)
    return 4;
  return 0;
}

int decodeUtf8(const char*& cursor, int availableBytes) {
  if (availableBytes < 1)
    return -1;
  auto lead = static_cast<unsigned char>(*cursor++);
  if (lead < 0x80)
    return lead;
  int length = 0;
  while (length < 8 && (lead & (0x80 >> length)))
    ++length;
  if (length < 2 || length > 4 || length > availableBytes)
    return -1;
  int value = lead & (0x7F >> length);
  for (int i = 1; i < length; ++i) {
    auto byte = static_cast<unsigned char>(*cursor);
    if ((byte & 0xC0) != 0x80)
      return -1;
    value = (value << 6) | (byte & 0x3F);
    ++cursor;
  }
  if (value > maxCodePoint || isNoncharacterOrSurrogate(value) || utf8Length(value) != length)
    return -1;
  return value;
}

void encodeUtf8(int codePoint, char*& cursor) {
  if (codePoint < 0 || codePoint > maxCodePoint)
    throw Exception("Unicode out of range");
  auto put = [&cursor](int byte) { *cursor++ = static_cast<char>(byte); };
  switch (utf8Length(codePoint)) {
  case 1:
    put(codePoint);
    break;
  case 2:
    put(0xC0 | (codePoint >> 6));
    put(0x80 | (codePoint & 0x3F));
    break;
  case 3:
    put(0xE0 | (codePoint >> 12));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
    break;
  default:
    put(0xF0 | (codePoint >> 18));
    put(0x80 | ((codePoint >> 12) & 0x3F));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
    break;
  }
}

bool isValidUtf8(const char* begin, const char* end) {
  if (!begin || begin == end)
    return true;
  end = endOf(begin, end);
  for (const char* cursor = begin; cursor < end;)
    if (decodeUtf8(cursor, available(cursor, end)) < 0)
      return false;
  return true;
}

int codePointCount(const char* begin, const char* end) {
  if (!begin)
    return 0;
  end = endOf(begin, end);
  int count = 0;
  for (const char* cursor = begin; cursor < end; ++count)
    decodeUtf8(cursor, available(cursor, end));
  return count;
}

String repairUtf8(const char* begin, const char* end, int maxBytes) {
  if (!begin)
    return String();
  end = endOf(begin, end);
  // Written at a known length: appending would rescan the string for its end
  // at each piece, which makes long texts quadratic.
  DString out;
  out.ensure(static_cast<int>(end - begin) + 1);
  std::size_t length = 0;
  char encoded[4];
  for (const char* cursor = begin; cursor < end;) {
    const char* start = cursor;
    int value = decodeUtf8(cursor, available(cursor, end));
    const char* piece = start;
    std::size_t pieceLength = static_cast<std::size_t>(cursor - start);
    if (value < 0) {
      char* write = encoded;
      encodeUtf8(replacementChar, write);
      piece = encoded;
      pieceLength = static_cast<std::size_t>(write - encoded);
    }
    if (maxBytes >= 0 && length + pieceLength > static_cast<std::size_t>(maxBytes))
      break;
    out.ensure(static_cast<int>(length + pieceLength) + 1);
    std::memcpy(out.data() + length, piece, pieceLength);
    length += pieceLength;
  }
  out.data()[length] = '\0';
  return out.takeString();
}

String visibleText(const char* text, char escapeChar) {
  if (!text)
    return String();
  const char* end = text + std::strlen(text);
  std::size_t capacity = 4 * static_cast<std::size_t>(end - text) + 1;
  char* out = new char[capacity];
  char* write = out;
  auto put = [&write](int byte) { *write++ = static_cast<char>(byte); };
  for (const char* cursor = text; cursor < end;) {
    const char* start = cursor;
    int value = decodeUtf8(cursor, available(cursor, end));
    if (value == static_cast<unsigned char>(escapeChar)) {
      put(escapeChar);
      put(escapeChar);
    } else if ((value >= 0 && value < 32) || value == 127) {
      put(escapeChar);
      put('^');
      put(value ^ 0x40);
    } else if (value >= 0) {
      std::memcpy(write, start, static_cast<std::size_t>(cursor - start));
      write += cursor - start;
    } else {
      for (const char* bad = start; bad < cursor; ++bad) {
        int byte = static_cast<unsigned char>(*bad);
        put(escapeChar);
        if (byte & 0x80)
          put('M');
        int rest = byte & 0x7F;
        if (rest < 33 || rest > 126) {
          put('^');
          put(rest ^ 0x40);
        } else {
          put('-');
          put(rest);
        }
      }
    }
  }
  *write = '\0';
  return String::adopt(out);
}

String latin1ToUtf8(const char* text) {
  if (!text)
    return String();
  DString out;
  for (const char* cursor = text; *cursor; ++cursor) {
    auto byte = static_cast<unsigned char>(*cursor);
    out.appendChar(byte == latin1Euro ? euroSign : byte, 1);
  }
  return out.isNull() ? String("") : out.takeString();
}

String utf8ToLatin1(const char* text) {
  if (!text)
    return String();
  const char* end = text + std::strlen(text);
  char* out = new char[static_cast<std::size_t>(end - text) + 1];
  char* write = out;
  for (const char* cursor = text; cursor < end;) {
    int value = decodeUtf8(cursor, available(cursor, end));
    if (value == euroSign)
      *write++ = static_cast<char>(latin1Euro);
    else if (value >= 0 && value <= 255)
      *write++ = static_cast<char>(value);
    else
      *write++ = '?';
  }
  *write = '\0';
  return String::adopt(out);
}

} // namespace plat
