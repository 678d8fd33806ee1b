#include "plat/IsoTime.h"

#include "plat/Assertion.h"
#include "plat/LocalTime.h"

#include <cstdint>
#include <limits>

namespace plat {

namespace {

constexpr std::int32_t maxFieldsYear = std::numeric_limits<std::int32_t>::max() - 1900;

// Room for six 64-bit numbers with signs, separators, milliseconds and offset.
constexpr int textSize = 160;

// Writes `value` as printf's "%0<width>lld" does: a minus sign first, then
// zeroes up to `width` characters in all.
char* putNumber(char* out, std::int64_t value, int width) noexcept {
  char digits[20];
  int count = 0;
  std::uint64_t magnitude =
      value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
  do {
    digits[count++] = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  if (value < 0) {
    *out++ = '-';
    --width;
  }
  for (int i = count; i < width; ++i)
    *out++ = '0';
  while (count > 0)
    *out++ = digits[--count];
  return out;
}

char* putMillis(char* out, Ticks ticks) noexcept {
  *out++ = '.';
  return putNumber(out, floorMod(ticks, ticksPerSecond) / ticksPerMillisecond, 3);
}

char* putTimeOfDay(char* out, const DateFields& fields) noexcept {
  out = putNumber(out, fields.tm_hour, 2);
  *out++ = ':';
  out = putNumber(out, fields.tm_min, 2);
  *out++ = ':';
  return putNumber(out, fields.tm_sec, 2);
}

// The ISO text of the fields, or null when the year does not fit.
char* putIsoFields(char* out, const DateFields& fields, Ticks ticks, bool withMillis) noexcept {
  if (fields.tm_year > maxFieldsYear)
    return nullptr;
  out = putNumber(out, std::int64_t{fields.tm_year} + 1900, 4);
  *out++ = '-';
  out = putNumber(out, std::int64_t{fields.tm_mon} + 1, 2);
  *out++ = '-';
  out = putNumber(out, fields.tm_mday, 2);
  *out++ = 'T';
  out = putTimeOfDay(out, fields);
  return withMillis ? putMillis(out, ticks) : out;
}

void replaceWith(DString& result, char* text, char* end) {
  *end = '\0';
  result.clear();
  result.append(text);
}

void replaceWithDateError(DString& result) {
  result.clear();
  result.append("<date error>");
}

} // namespace

bool formatIsoFields(DString& result, const DateFields& fields, Ticks ticks, bool withMillis) {
  char text[textSize];
  char* end = putIsoFields(text, fields, ticks, withMillis);
  if (!end) {
    replaceWithDateError(result);
    return false;
  }
  replaceWith(result, text, end);
  return true;
}

void formatIsoUtc(DString& result, Ticks ticks, bool withMillis) {
  DateFields fields;
  ticksToUtc(fields, ticks);
  char text[textSize];
  // Split ticks always have a year of 32 bits, so the text is always made.
  char* end = putIsoFields(text, fields, ticks, withMillis);
  *end++ = 'Z';
  replaceWith(result, text, end);
}

DString formatIsoLocal(const DateFields& fields, Ticks ticks, bool withMillis) {
  DString result;
  char text[textSize];
  char* end = putIsoFields(text, fields, ticks, withMillis);
  if (!end) {
    replaceWithDateError(result);
    return result;
  }
  std::int64_t offSecs = fieldsToSeconds(fields) - floorDiv(ticks, ticksPerSecond);
  if (!(offSecs < 365 * secondsPerDay && offSecs > -365 * secondsPerDay))
    assertionFailed(
        AssertionFail("offSecs < 365*86400 && offSecs > -365*86400", __FILE__, __LINE__));
  *end++ = offSecs < 0 ? '-' : '+';
  std::int64_t magnitude = offSecs < 0 ? -offSecs : offSecs;
  end = putNumber(end, magnitude / 3600, 2);
  *end++ = ':';
  end = putNumber(end, magnitude / 60 % 60, 2);
  replaceWith(result, text, end);
  return result;
}

void formatClockTime(DString& result, const DateFields& fields, Ticks ticks) {
  char text[textSize];
  char* end = putMillis(putTimeOfDay(text, fields), ticks);
  replaceWith(result, text, end);
}

void formatLocalClockTime(DString& result, Ticks ticks) {
  DateFields fields;
  ticksToLocal(fields, ticks);
  formatClockTime(result, fields, ticks);
}

} // namespace plat
