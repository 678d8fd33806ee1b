// Local time. The zone is described once per process by TimeZoneData, in the
// terms of biases (minutes to add to local time to get UTC), and never
// refreshed: a change of the machine's zone takes effect at the next start.
// The conversion of a date itself goes through the platform, which knows the
// zone's rules for each year.
#pragma once

#include "plat/Calendar.h"
#include "plat/String.h"
#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

struct TimeZoneData {
  std::int32_t bias = 0;         ///< minutes: UTC = local + bias (+ the season's bias)
  std::int32_t standardBias = 0; ///< added to `bias` in standard time
  std::int32_t daylightBias = 0; ///< added to `bias` in daylight time
  bool useDynamic = false;       ///< the platform applies the rules of each year
  bool failed = false;           ///< the zone could not be read; local time is UTC
  String standardName;
  String daylightName;
};

/// The zone of the process, read on first use.
const TimeZoneData& timeZoneData();

/// The local fields of `ticks`, clamped to the years 1601 to 9999. tm_gmtoff
/// is the zone's offset at that instant; tm_isdst and tm_zone follow from
/// comparing it with the biases, so an offset that fits neither season is
/// named by the daylight name with tm_isdst -1.
void ticksToLocal(DateFields& fields, Ticks ticks);

} // namespace plat
