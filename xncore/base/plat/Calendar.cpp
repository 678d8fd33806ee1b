#include "plat/Calendar.h"

#include "plat/Exception.h"

#include <algorithm>
#include <limits>

namespace plat {

namespace {

constexpr std::int32_t minYear = -1'000'000;
constexpr std::int32_t maxYear = 1'000'000;
// Beyond this many days from 1601 in either direction the ticks overflow.
constexpr std::int64_t dayLimit = 10'675'200;
// The largest tm_year whose year still fits in 32 bits.
constexpr std::int32_t maxFieldsYear = std::numeric_limits<std::int32_t>::max() - 1900;

constexpr std::int32_t daysBeforeMonth[12] = {0,   31,  59,  90,  120, 151,
                                              181, 212, 243, 273, 304, 334};
constexpr std::int32_t monthLengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Days from 1601-01-01 to the first of January of `year`: 365 a year and the
// Gregorian leap days in between.
std::int64_t daysBeforeYear(std::int32_t year) noexcept {
  std::int64_t years = std::int64_t{year} - 1601;
  return years * 365 + floorDiv(years, 4) - floorDiv(years, 100) + floorDiv(years, 400);
}

// tm_mon + 1 without overflowing on a nonsensical tm_mon.
std::int32_t monthOf(const DateFields& fields) noexcept {
  return fields.tm_mon < std::numeric_limits<std::int32_t>::max() ? fields.tm_mon + 1
                                                                  : fields.tm_mon;
}

Ticks makeFieldsTicks(const DateFields& fields, std::int32_t year) {
  return makeTicks(year, monthOf(fields), fields.tm_mday, fields.tm_hour, fields.tm_min,
                   fields.tm_sec);
}

} // namespace

bool isLeapYear(std::int32_t year) noexcept {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

std::int32_t daysInMonth(std::int32_t year, std::int32_t month) noexcept {
  return month == 2 && isLeapYear(year) ? 29 : monthLengths[month - 1];
}

std::int32_t dayOfYear(std::int32_t year, std::int32_t month, std::int32_t day) noexcept {
  return daysBeforeMonth[month - 1] + day - 1 + (month > 2 && isLeapYear(year) ? 1 : 0);
}

bool isValidDateTime(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour,
                     std::int32_t minute, std::int32_t second) noexcept {
  return month >= 1 && month <= 12 && day >= 1 && day <= daysInMonth(year, month) && hour >= 0 &&
         hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 61;
}

bool tryMakeTicks(Ticks& result, std::int32_t year, std::int32_t month, std::int32_t day,
                  std::int32_t hour, std::int32_t minute, std::int32_t second) noexcept {
  if (!isValidDateTime(year, month, day, hour, minute, second) || year < minYear || year > maxYear)
    return false;
  std::int64_t days = daysBeforeYear(year) + dayOfYear(year, month, day);
  if (days >= dayLimit || days < -dayLimit)
    return false;
  Ticks timeOfDay = hour * ticksPerHour + minute * ticksPerMinute + second * ticksPerSecond;
  // On the earliest day the start of the day itself is below the range while a
  // later time of the day is not, so count negative days from their end.
  if (days < 0)
    return !__builtin_add_overflow((days + 1) * ticksPerDay, timeOfDay - ticksPerDay, &result);
  return !__builtin_add_overflow(days * ticksPerDay, timeOfDay, &result);
}

Ticks makeTicks(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour,
                std::int32_t minute, std::int32_t second) {
  Ticks result;
  if (!tryMakeTicks(result, year, month, day, hour, minute, second))
    throw Exception(formatted, "invalid date (%04d-%02d-%02dT%02d:%02d:%02d)", year, month, day,
                    hour, minute, second);
  return result;
}

void splitTicks(Ticks ticks, std::int32_t& year, std::int32_t& month, std::int32_t& day,
                std::int32_t& hour, std::int32_t& minute, std::int32_t& second, std::int32_t& wday,
                std::int32_t& yday) noexcept {
  std::int64_t days = floorDiv(ticks, ticksPerDay);
  std::int64_t secondOfDay = floorMod(ticks, ticksPerDay) / ticksPerSecond;
  hour = static_cast<std::int32_t>(secondOfDay / 3600);
  minute = static_cast<std::int32_t>(secondOfDay / 60 % 60);
  second = static_cast<std::int32_t>(secondOfDay % 60);
  // 1601-01-01 was a Monday, weekday 1.
  wday = static_cast<std::int32_t>(floorMod(days + 1, 7));

  // 1601 starts a 400-year cycle, so each cycle, century, four-year group and
  // year ends with its own leap day where there is one. The last day of a
  // cycle and of a four-year group would count as the start of a fifth
  // century or year; it belongs to the fourth.
  std::int64_t cycles = floorDiv(days, daysPer400Years);
  std::int64_t rest = days - cycles * daysPer400Years;
  std::int64_t centuries = std::min<std::int64_t>(rest / 36'524, 3);
  rest -= centuries * 36'524;
  std::int64_t groups = rest / 1'461;
  rest -= groups * 1'461;
  std::int64_t years = std::min<std::int64_t>(rest / 365, 3);
  rest -= years * 365;
  year = static_cast<std::int32_t>(1601 + cycles * 400 + centuries * 100 + groups * 4 + years);
  yday = static_cast<std::int32_t>(rest);

  month = 1;
  std::int32_t dayOfMonth = yday;
  while (dayOfMonth >= daysInMonth(year, month)) {
    dayOfMonth -= daysInMonth(year, month);
    ++month;
  }
  day = dayOfMonth + 1;
}

Ticks unixToTicks(std::int64_t seconds) noexcept {
  constexpr std::int64_t maxInput = std::numeric_limits<std::int64_t>::max() - unixEpochSeconds;
  constexpr std::int64_t maxSeconds = std::numeric_limits<Ticks>::max() / ticksPerSecond;
  std::int64_t sum = std::min(seconds, maxInput) + unixEpochSeconds;
  if (sum < -maxSeconds)
    return std::numeric_limits<Ticks>::min();
  if (sum > maxSeconds)
    return std::numeric_limits<Ticks>::max();
  return sum * ticksPerSecond;
}

Ticks unixToTicks(std::int64_t seconds, std::int64_t nanoseconds) noexcept {
  Ticks whole = unixToTicks(seconds);
  Ticks fraction = nanoseconds / 100;
  return whole > std::numeric_limits<Ticks>::max() - fraction ? std::numeric_limits<Ticks>::max()
                                                              : whole + fraction;
}

Ticks fieldsToTicks(const DateFields& fields) {
  return makeFieldsTicks(fields, std::min(fields.tm_year, maxFieldsYear) + 1900);
}

std::int64_t fieldsToSeconds(const DateFields& fields) {
  std::int32_t cycles = fields.tm_year / 400;
  Ticks ticks = makeFieldsTicks(fields, fields.tm_year - cycles * 400 + 1900);
  return ticks / ticksPerSecond + cycles * secondsPer400Years;
}

void ticksToUtc(DateFields& fields, Ticks ticks) noexcept {
  std::int32_t year, month;
  splitTicks(ticks, year, month, fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec,
             fields.tm_wday, fields.tm_yday);
  fields.tm_year = year - 1900;
  fields.tm_mon = month - 1;
  fields.tm_isdst = 0;
  fields.tm_gmtoff = 0;
  fields.tm_zone = "UTC";
}

} // namespace plat
