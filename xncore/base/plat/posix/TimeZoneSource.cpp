#include "plat/TimeZoneSource.h"

#include "plat/Clock.h"

#include <time.h>

namespace plat {

namespace {

// What the zone says for one season: its offset east of UTC and its name.
struct Season {
  bool found = false;
  long offsetSeconds = 0;
  const char* name = nullptr;
};

time_t toTimeT(Ticks utc) noexcept {
  return static_cast<time_t>(utc / ticksPerSecond - unixEpochSeconds);
}

const char* nonEmpty(const char* name, const char* fallback) noexcept {
  return name && *name ? name : fallback;
}

} // namespace

TimeZoneData readTimeZoneData() {
  // localtime_r need not read TZ or /etc/localtime itself; tzset does, and
  // fills tzname and timezone.
  tzset();
  TimeZoneData data;
  // The C library applies the zone's rules of each year, as the dynamic zone
  // calls of other platforms do.
  data.useDynamic = true;

  // The C library gives no biases, only the offset of an instant. Probe the
  // middle of each month of this year and keep the first offset of each season.
  DateFields today;
  ticksToUtc(today, timeNow());
  Season standard, daylight;
  for (std::int32_t month = 1; month <= 12; ++month) {
    time_t when = toTimeT(makeTicks(today.tm_year + 1900, month, 15, 12, 0, 0));
    tm local;
    if (!localtime_r(&when, &local))
      continue;
    Season& season = local.tm_isdst > 0 ? daylight : standard;
    if (!season.found)
      season = {true, local.tm_gmtoff, local.tm_zone};
  }
  if (!standard.found && !daylight.found) {
    data.failed = true;
    data.standardName = String("Unknown Timezone");
    data.daylightName = data.standardName;
    return data;
  }
  // A zone that keeps daylight time all year still has a standard offset.
  if (!standard.found)
    standard = {true, -timezone, tzname[0]};

  data.bias = static_cast<std::int32_t>(-standard.offsetSeconds / 60);
  data.daylightBias =
      daylight.found ? static_cast<std::int32_t>(-daylight.offsetSeconds / 60) - data.bias : 0;
  data.standardName = String(nonEmpty(standard.name, tzname[0]));
  data.daylightName = String(nonEmpty(daylight.name, nonEmpty(tzname[1], standard.name)));
  return data;
}

bool platformLocalFields(Ticks utc, DateFields& local) noexcept {
  time_t when = toTimeT(utc);
  tm fields;
  if (!localtime_r(&when, &fields))
    return false;
  local.tm_sec = fields.tm_sec;
  local.tm_min = fields.tm_min;
  local.tm_hour = fields.tm_hour;
  local.tm_mday = fields.tm_mday;
  local.tm_mon = fields.tm_mon;
  local.tm_year = fields.tm_year;
  local.tm_wday = fields.tm_wday;
  return true;
}

} // namespace plat
