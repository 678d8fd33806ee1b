#include "plat/PathExpand.h"

#include "plat/DString.h"
#include "plat/Exception.h"

#include <cstdlib>
#include <cstring>

namespace plat {

namespace {

bool isNameChar(char ch) noexcept {
  return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9') ||
         ch == '_';
}

// The value of `name`, or null when it is unknown.
const char* lookUp(const String& name, const PathVariables* variables, bool useEnvironment) {
  if (variables) {
    auto found = variables->find(name);
    return found != variables->end() ? found->second.orEmpty() : nullptr;
  }
  return useEnvironment ? std::getenv(name.get()) : nullptr;
}

} // namespace

String pathExpand(const char* text, const PathVariables* variables, bool strict,
                  bool useEnvironment) {
  if (!text || !std::strchr(text, '$'))
    return String(text);
  DString out("");
  const char* cursor = text;
  while ((cursor = appendUntilMarker(out, cursor, '$'))) {
    const char* nameStart = cursor;
    const char* nameEnd;
    if (*cursor == '{') {
      nameStart = cursor + 1;
      const char* brace = std::strchr(nameStart, '}');
      nameEnd = brace ? brace : nameStart + std::strlen(nameStart);
      cursor = brace ? brace + 1 : nameEnd;
    } else {
      nameEnd = cursor;
      while (isNameChar(*nameEnd))
        ++nameEnd;
      cursor = nameEnd;
    }
    // "${}", and a "$" that no name follows, stand for themselves.
    if (nameEnd == nameStart) {
      out.append("$");
      continue;
    }
    String name = strDup(nameStart, static_cast<int>(nameEnd - nameStart));
    const char* value = lookUp(name, variables, useEnvironment);
    if (!value && strict)
      throw Exception(formatted, "unknown environment variable: %s", name.get());
    out.append(value);
  }
  return out.takeString();
}

} // namespace plat
