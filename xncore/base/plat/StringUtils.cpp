#include "plat/StringUtils.h"

#include <cctype>
#include <cstring>

#include "plat/DString.h"

namespace plat {

namespace {

int lowerByte(char ch) { return std::tolower(static_cast<unsigned char>(ch)); }

// Byte-wise comparison of `length` bytes without regard to case, by the C
// library's rule.
bool equalNoCase(const char* a, const char* b, std::size_t length) {
  for (std::size_t i = 0; i < length; ++i)
    if (lowerByte(a[i]) != lowerByte(b[i]))
      return false;
  return true;
}

// The common rule of the prefix and suffix tests: a null affix matches
// everything, null text only an empty affix.
template <class Compare>
bool matchesAffix(const char* text, const char* affix, bool atEnd, Compare same) {
  if (!affix)
    return true;
  std::size_t affixLength = std::strlen(affix);
  if (!text)
    return affixLength == 0;
  std::size_t textLength = std::strlen(text);
  if (affixLength > textLength)
    return false;
  return same(text + (atEnd ? textLength - affixLength : 0), affix, affixLength);
}

bool equalBytes(const char* a, const char* b, std::size_t length) {
  return std::memcmp(a, b, length) == 0;
}

template <class Transform>
void transformInPlace(char* text, Transform transform) {
  if (!text)
    return;
  for (; *text; ++text)
    *text = static_cast<char>(transform(static_cast<unsigned char>(*text)));
}

// The shared walk of the tokenisers. `delimiterAt` returns the length of the
// delimiter that starts at its argument, 0 when none does.
template <class DelimiterAt>
char* takeToken(char*& cursor, bool skipEmpty, char* foundDelimiter, DelimiterAt delimiterAt) {
  if (foundDelimiter)
    *foundDelimiter = '\0';
  if (!cursor)
    return nullptr;
  if (skipEmpty) {
    while (std::size_t length = delimiterAt(cursor))
      cursor += length;
    if (!*cursor) {
      cursor = nullptr;
      return nullptr;
    }
  }
  char* token = cursor;
  for (char* scan = cursor; *scan; ++scan) {
    if (std::size_t length = delimiterAt(scan)) {
      if (foundDelimiter)
        *foundDelimiter = *scan;
      *scan = '\0';
      cursor = scan + length;
      if (skipEmpty) {
        while (std::size_t more = delimiterAt(cursor))
          cursor += more;
        if (!*cursor)
          cursor = nullptr;
      }
      return token;
    }
  }
  cursor = nullptr;
  return token;
}

} // namespace

bool isWhitespace(char ch) noexcept { return ch == ' ' || ch == '\t' || ch == '\n' || ch == '\r'; }

std::size_t strLen(const char* text) noexcept { return text ? std::strlen(text) : 0; }

std::size_t strLenMax(const char* text, int maxLen) noexcept {
  if (!text)
    return 0;
  if (maxLen < 0)
    return std::strlen(text);
  std::size_t length = 0;
  while (length < static_cast<std::size_t>(maxLen) && text[length])
    ++length;
  return length;
}

std::size_t strCopy(char* dest, const char* src, std::size_t destSize) noexcept {
  std::size_t sourceLength = strLen(src);
  if (destSize == 0)
    return sourceLength;
  std::size_t copied = sourceLength < destSize - 1 ? sourceLength : destSize - 1;
  if (copied > 0)
    std::memcpy(dest, src, copied);
  dest[copied] = '\0';
  return sourceLength;
}

bool startsWith(const char* text, const char* prefix) noexcept {
  return matchesAffix(text, prefix, false, equalBytes);
}

bool startsWithNoCase(const char* text, const char* prefix) noexcept {
  return matchesAffix(text, prefix, false, equalNoCase);
}

bool endsWith(const char* text, const char* suffix) noexcept {
  return matchesAffix(text, suffix, true, equalBytes);
}

bool endsWithNoCase(const char* text, const char* suffix) noexcept {
  return matchesAffix(text, suffix, true, equalNoCase);
}

const char* findNoCase(const char* text, const char* needle) noexcept {
  // A null needle matches everything, as for the prefix tests.
  if (!text || !needle)
    return text;
  std::size_t needleLength = std::strlen(needle);
  for (const char* scan = text;; ++scan) {
    if (equalNoCase(scan, needle, needleLength))
      return scan;
    if (!*scan)
      return nullptr;
  }
}

bool containsChar(const char* begin, const char* end, char ch) noexcept {
  if (!begin)
    return false;
  for (const char* scan = begin; (!end || scan < end) && *scan; ++scan)
    if (*scan == ch)
      return true;
  return false;
}

bool hasNonSpace(const char* text) noexcept {
  for (; text && *text; ++text)
    if (!isWhitespace(*text))
      return true;
  return false;
}

void lowerAscii(char* text) noexcept {
  transformInPlace(text, [](int ch) { return ch >= 'A' && ch <= 'Z' ? ch + ('a' - 'A') : ch; });
}

void upperAscii(char* text) noexcept {
  transformInPlace(text, [](int ch) { return ch >= 'a' && ch <= 'z' ? ch - ('a' - 'A') : ch; });
}

void lowerLocale(char* text) noexcept { transformInPlace(text, [](int ch) { return std::tolower(ch); }); }

void upperLocale(char* text) noexcept { transformInPlace(text, [](int ch) { return std::toupper(ch); }); }

void removeChars(char* text, const char* set) noexcept {
  if (!text || !set)
    return;
  char* write = text;
  for (const char* read = text; *read; ++read)
    if (!std::strchr(set, *read))
      *write++ = *read;
  *write = '\0';
}

void trimLeft(char* text) noexcept {
  if (!text)
    return;
  char* start = text;
  while (isWhitespace(*start))
    ++start;
  if (start != text)
    std::memmove(text, start, std::strlen(start) + 1);
}

void trimRight(char* text) noexcept {
  if (!text)
    return;
  std::size_t length = std::strlen(text);
  while (length > 0 && isWhitespace(text[length - 1]))
    --length;
  text[length] = '\0';
}

String insertEvery(const char* text, char ch, int n) {
  if (!text || n <= 0)
    return String(text);
  DString out;
  out.ensure(1);
  std::size_t length = std::strlen(text);
  for (std::size_t at = 0; at < length; at += static_cast<std::size_t>(n)) {
    if (at > 0)
      out.append(&ch, 1);
    out.append(text + at, n);
  }
  return out.takeString();
}

std::uint64_t hash64(const char* text) noexcept {
  std::uint64_t hash = 0xcbf29ce484222325ULL;
  for (; text && *text; ++text) {
    hash ^= static_cast<unsigned char>(*text);
    hash *= 0x100000001b3ULL;
  }
  return hash;
}

char* nextToken(char*& cursor, char delimiter, bool skipEmpty) noexcept {
  return takeToken(cursor, skipEmpty, nullptr,
                   [delimiter](const char* at) -> std::size_t { return *at && *at == delimiter; });
}

char* nextTokenAny(char*& cursor, const char* delimiters, char* foundDelimiter,
                   bool skipEmpty) noexcept {
  return takeToken(cursor, skipEmpty, foundDelimiter, [delimiters](const char* at) -> std::size_t {
    return *at && std::strchr(delimiters, *at) != nullptr;
  });
}

char* nextTokenStr(char*& cursor, const char* delimiter, bool skipEmpty) noexcept {
  std::size_t delimiterLength = strLen(delimiter);
  return takeToken(cursor, skipEmpty, nullptr, [=](const char* at) -> std::size_t {
    return delimiterLength && std::strncmp(at, delimiter, delimiterLength) == 0 ? delimiterLength
                                                                               : 0;
  });
}

char* splitLast(char*& cursor, char ch) noexcept {
  char* text = cursor;
  if (!text)
    return nullptr;
  char* last = std::strrchr(text, ch);
  if (!last) {
    cursor = nullptr;
    return text;
  }
  *last = '\0';
  return last + 1;
}

std::set<String> splitToSet(const char* text, char ch) {
  std::set<String> pieces;
  if (!text)
    return pieces;
  for (const char* start = text;;) {
    const char* end = std::strchr(start, ch);
    if (!end) {
      pieces.insert(String(start));
      return pieces;
    }
    pieces.insert(strDup(start, static_cast<int>(end - start)));
    start = end + 1;
  }
}

} // namespace plat
