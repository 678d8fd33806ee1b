#include "xnutil/ConfigText.h"

#include "plat/NameCompare.h"

#include <cstring>
#include <string>

namespace xnutil {

namespace {

bool isBlank(char ch) {
  return ch == ' ' || ch == '\t';
}

// One line of the text, without its line feed and the carriage returns before it.
struct Line {
  const char* begin;
  const char* end;
  const char* next; // the following line, or null after the last
};

Line lineAt(const char* cursor) {
  const char* feed = std::strchr(cursor, '\n');
  const char* end = feed ? feed : cursor + std::strlen(cursor);
  const char* next = feed ? feed + 1 : nullptr;
  while (end > cursor && end[-1] == '\r')
    --end;
  return Line{cursor, end, next};
}

// The trimmed name of an entry line, or null for a comment, a blank line or
// a line without "=". `value` then points behind the "=".
plat::String entryName(const Line& line, const char*& value) {
  const char* begin = line.begin;
  while (begin < line.end && isBlank(*begin))
    ++begin;
  if (begin == line.end || *begin == '#')
    return plat::String();
  const char* equals = static_cast<const char*>(std::memchr(begin, '=', line.end - begin));
  if (!equals)
    return plat::String();
  const char* end = equals;
  while (end > begin && isBlank(end[-1]))
    --end;
  if (end == begin)
    return plat::String();
  value = equals + 1;
  return plat::strDup(begin, static_cast<int>(end - begin));
}

} // namespace

std::vector<ConfigEntry> parseConfigText(const char* text) {
  std::vector<ConfigEntry> entries;
  for (const char* cursor = text && *text ? text : nullptr; cursor;) {
    Line line = lineAt(cursor);
    const char* value = nullptr;
    plat::String name = entryName(line, value);
    if (!name.isNull()) {
      const char* end = line.end;
      while (value < end && isBlank(*value))
        ++value;
      while (end > value && isBlank(end[-1]))
        --end;
      entries.emplace_back(std::move(name), plat::strDup(value, static_cast<int>(end - value)));
    }
    cursor = line.next && *line.next ? line.next : nullptr;
  }
  return entries;
}

plat::String setConfigTextValue(const char* text, const char* name, const char* value) {
  // Kept with its length: a file may hold one long value among short lines.
  std::string out;
  bool written = false;
  for (const char* cursor = text && *text ? text : nullptr; cursor;) {
    Line line = lineAt(cursor);
    const char* oldValue = nullptr;
    plat::String lineName = entryName(line, oldValue);
    if (lineName.isNull() || !plat::equalsNoCase(lineName.get(), name)) {
      out.append(line.begin, line.end).append("\n");
    } else if (value && !written) {
      out.append(name).append("=").append(value).append("\n");
      written = true;
    }
    cursor = line.next && *line.next ? line.next : nullptr;
  }
  if (value && !written)
    out.append(name).append("=").append(value).append("\n");
  return plat::String(out.c_str());
}

} // namespace xnutil
