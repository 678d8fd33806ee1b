#include "plat/MarkupEscape.h"

#include "plat/utf8.h"

#include <cstring>

namespace plat {

namespace {

const char* entityOf(char ch) {
  switch (ch) {
  case '&':
    return "&amp;";
  case '<':
    return "&lt;";
  case '>':
    return "&gt;";
  case '"':
    return "&quot;";
  case '\'':
    return "&apos;";
  default:
    return nullptr;
  }
}

} // namespace

// Sized first and written once, so that escaping stays linear in the text.
String escapeMarkup(const char* text) {
  if (!text)
    return String();
  String valid = repairUtf8(text);
  std::size_t size = 0;
  for (const char* cursor = valid.get(); *cursor; ++cursor) {
    const char* entity = entityOf(*cursor);
    size += entity ? std::strlen(entity) : 1;
  }
  char* out = new char[size + 1];
  char* end = out;
  for (const char* cursor = valid.get(); *cursor; ++cursor) {
    if (const char* entity = entityOf(*cursor)) {
      std::size_t length = std::strlen(entity);
      std::memcpy(end, entity, length);
      end += length;
    } else {
      *end++ = *cursor;
    }
  }
  *end = '\0';
  return String::adopt(out);
}

} // namespace plat
