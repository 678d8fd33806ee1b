#include "plat/MarkupEscape.h"

#include "plat/DString.h"
#include "plat/utf8.h"

namespace plat {

String escapeMarkup(const char* text) {
  if (!text)
    return String();
  String valid = repairUtf8(text);
  DString out;
  out.ensure(1);
  for (const char* cursor = valid.get(); *cursor; ++cursor) {
    switch (*cursor) {
    case '&':
      out.append("&amp;");
      break;
    case '<':
      out.append("&lt;");
      break;
    case '>':
      out.append("&gt;");
      break;
    case '"':
      out.append("&quot;");
      break;
    case '\'':
      out.append("&apos;");
      break;
    default:
      out.append(cursor, 1);
    }
  }
  return out.takeString();
}

} // namespace plat
