#include "plat/LocalTime.h"

#include "plat/TimeZoneSource.h"

#include <algorithm>

namespace plat {

namespace {

// The range of instants that the platforms convert: 1601-01-01 to 10000-01-01.
constexpr Ticks earliestLocal = 0;
constexpr Ticks latestLocal = 2'650'467'744'000'000'000;

} // namespace

const TimeZoneData& timeZoneData() {
  static const TimeZoneData data = readTimeZoneData();
  return data;
}

void ticksToLocal(DateFields& fields, Ticks ticks) {
  ticks = std::clamp(ticks, earliestLocal, latestLocal);
  // The conversion works on whole seconds, so the offset is measured against
  // the whole second too.
  Ticks utc = ticks - ticks % ticksPerSecond;
  DateFields local;
  ticksToUtc(local, utc);
  const TimeZoneData& zone = timeZoneData();
  // Without the zone, or when the platform cannot convert, local time is UTC.
  DateFields converted = local;
  if (!zone.failed && platformLocalFields(utc, converted))
    local = converted;

  fields = local;
  fields.tm_isdst = -1;
  fields.tm_yday = dayOfYear(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  std::int64_t offsetSeconds = (fieldsToTicks(local) - utc) / ticksPerSecond;
  std::int64_t offsetMinutes = offsetSeconds / 60;
  fields.tm_gmtoff = static_cast<std::int32_t>(offsetSeconds);
  if (offsetMinutes == -(zone.bias + zone.daylightBias))
    fields.tm_isdst = 1;
  // The standard test comes last, so that it wins when both biases are equal.
  if (offsetMinutes == -(zone.bias + zone.standardBias)) {
    fields.tm_isdst = 0;
    fields.tm_zone = zone.standardName.get();
  } else {
    fields.tm_zone = zone.daylightName.get();
  }
}

} // namespace plat
