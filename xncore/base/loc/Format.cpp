// The formatter of translated texts. Its grammar is its own, not printf's:
// "%S", "%D" and "%X" with an optional "+" flag, ".N" precision and "N$"
// position, so that a translation can put the arguments in its own order.
#include "loc/Localize.h"
#include "plat/DString.h"
#include "plat/utf8.h"

#include <cstdint>
#include <cstring>

namespace loc {

namespace {

// Large enough for any 32-bit number with its sign.
constexpr int numberSize = 16;
// Positions and precisions beyond this select nothing and make the conversion bad.
constexpr std::int64_t numberLimit = 1 << 20;

struct Conversion {
  bool flag = false;
  int precision = 0; // 0: none
  int position = 0;  // 0: none
  char letter = 0;
};

// Reads a decimal number at `cursor`; -1 when there are no digits.
std::int64_t readNumber(const char*& cursor) {
  if (*cursor < '0' || *cursor > '9')
    return -1;
  std::int64_t value = 0;
  for (; *cursor >= '0' && *cursor <= '9'; ++cursor) {
    if (value <= numberLimit)
      value = value * 10 + (*cursor - '0');
  }
  return value;
}

// Parses what follows a "%" up to and including the conversion letter; false
// when the conversion is bad. `cursor` then stands behind what was read.
bool parseConversion(const char*& cursor, Conversion& conversion) {
  bool seenPrecision = false;
  for (;;) {
    char c = *cursor;
    if (c == 'S' || c == 'D' || c == 'X') {
      conversion.letter = c;
      ++cursor;
      return true;
    }
    if (c == '+') {
      conversion.flag = true;
      ++cursor;
    } else if (c == '.') {
      ++cursor;
      std::int64_t precision = readNumber(cursor);
      if (seenPrecision || precision <= 0 || precision > numberLimit)
        return false;
      seenPrecision = true;
      conversion.precision = static_cast<int>(precision);
    } else {
      std::int64_t position = readNumber(cursor);
      if (position < 1 || position > numberLimit || *cursor != '$')
        return false;
      ++cursor;
      conversion.position = static_cast<int>(position);
    }
  }
}

const LocArg* selectArgument(const LocArg* arguments, int position) {
  if (position == 0)
    return arguments && !arguments->next() ? arguments : nullptr;
  const LocArg* argument = arguments;
  for (int index = 1; argument && index < position; ++index)
    argument = argument->next();
  return argument;
}

// Appends the converted argument; false when argument and conversion don't fit.
bool convert(plat::DString& out, const Conversion& conversion, const LocArg* argument) {
  if (!argument)
    return false;
  char number[numberSize];
  switch (conversion.letter) {
  case 'S':
    if (argument->type() != LocArg::typeString || conversion.flag)
      return false;
    if (conversion.precision > 0)
      out.append(plat::repairUtf8(argument->stringValue(), nullptr, conversion.precision).get());
    else
      out.append(argument->stringValue());
    return true;
  case 'D':
    if (conversion.precision > 0)
      return false;
    if (argument->type() == LocArg::typeSigned)
      std::snprintf(number, sizeof number, conversion.flag ? "%+d" : "%d",
                    static_cast<int>(argument->intValue()));
    else if (argument->type() == LocArg::typeUnsigned && !conversion.flag)
      std::snprintf(number, sizeof number, "%u", static_cast<unsigned>(argument->uintValue()));
    else
      return false;
    out.append(number);
    return true;
  default: // 'X'
    if (argument->type() != LocArg::typeUnsigned || conversion.flag || conversion.precision > 0)
      return false;
    std::snprintf(number, sizeof number, "%x", static_cast<unsigned>(argument->uintValue()));
    out.append(number);
    return true;
  }
}

} // namespace

void format(plat::DString& result, const char* text, const LocArg* arguments) {
  plat::DString out;
  out.ensure(1);
  bool bad = false;
  const char* cursor = text ? text : "";
  while ((cursor = plat::appendUntilMarker(out, cursor, '%'))) {
    const char* afterPercent = cursor;
    Conversion conversion;
    if (parseConversion(cursor, conversion) &&
        convert(out, conversion, selectArgument(arguments, conversion.position)))
      continue;
    // The rest of a bad conversion stands in the output as plain text.
    bad = true;
    out.append("%%");
    cursor = afterPercent;
  }
  result = std::move(out);
  if (bad)
    detail::reportBadText(plat::strFormat("Bad loc string for args - %s", text).get());
}

} // namespace loc
