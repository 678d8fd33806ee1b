// The calendar arithmetic of the system: turning ticks into dates and back on
// the proleptic Gregorian calendar. All of it is plain arithmetic of our own,
// so that a UTC timestamp costs no call of the platform. Months count from 1
// in the argument lists; DateFields keeps the C library's conventions.
#pragma once

#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

/// A broken-down time, laid out like the C library's struct tm.
struct DateFields {
  std::int32_t tm_sec = 0;       ///< 0 to 60
  std::int32_t tm_min = 0;       ///< 0 to 59
  std::int32_t tm_hour = 0;      ///< 0 to 23
  std::int32_t tm_mday = 1;      ///< 1 to 31
  std::int32_t tm_mon = 0;       ///< 0 to 11
  std::int32_t tm_year = 0;      ///< the year less 1900
  std::int32_t tm_wday = 0;      ///< 0 for Sunday
  std::int32_t tm_yday = 0;      ///< 0 for the first of January
  std::int32_t tm_isdst = -1;    ///< 1 daylight time, 0 standard time, -1 unknown
  std::int32_t tm_gmtoff = 0;    ///< seconds east of UTC
  const char* tm_zone = nullptr; ///< the zone's name, not owned
};

/// Divisible by 4, and not by 100 unless also by 400.
bool isLeapYear(std::int32_t year) noexcept;

/// Days in `month` (1 to 12) of `year`.
std::int32_t daysInMonth(std::int32_t year, std::int32_t month) noexcept;

/// 0 for the first of January; `month` counts from 1 and must be valid.
std::int32_t dayOfYear(std::int32_t year, std::int32_t month, std::int32_t day) noexcept;

/// The field checks of tryMakeTicks without the range of the year. Second 60
/// is accepted: a leap second runs over into the next minute.
bool isValidDateTime(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour,
                     std::int32_t minute, std::int32_t second) noexcept;

/// Ticks of the given UTC date and time; false for invalid fields, a year
/// outside -1,000,000 to 1,000,000, or an instant beyond the range of ticks.
bool tryMakeTicks(Ticks& result, std::int32_t year, std::int32_t month, std::int32_t day,
                  std::int32_t hour, std::int32_t minute, std::int32_t second) noexcept;

/// As tryMakeTicks; raises Exception "invalid date (...)" on failure.
Ticks makeTicks(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour,
                std::int32_t minute, std::int32_t second);

/// Splits ticks into UTC fields, flooring: before 1601 the time of day is still
/// positive. `month` counts from 1, `wday` from Sunday, `yday` from 0.
/// Fractions of a second are dropped.
void splitTicks(Ticks ticks, std::int32_t& year, std::int32_t& month, std::int32_t& day,
                std::int32_t& hour, std::int32_t& minute, std::int32_t& second, std::int32_t& wday,
                std::int32_t& yday) noexcept;

/// Seconds since 1970 as ticks, saturating at the ends of the 64-bit range.
Ticks unixToTicks(std::int64_t seconds) noexcept;
/// As above, with the nanoseconds (0 to 999,999,999) of a time in the C
/// library's form added; still saturating.
Ticks unixToTicks(std::int64_t seconds, std::int64_t nanoseconds) noexcept;

/// makeTicks of the fields; raises for invalid fields.
Ticks fieldsToTicks(const DateFields& fields);

/// Seconds since 1601 of the fields, for any 32-bit year: whole 400-year
/// cycles are taken out before the ticks are made. Raises for invalid fields.
std::int64_t fieldsToSeconds(const DateFields& fields);

/// The UTC fields of `ticks`, with zone "UTC".
void ticksToUtc(DateFields& fields, Ticks ticks) noexcept;

} // namespace plat
