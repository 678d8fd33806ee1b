// What the platform directory supplies to local time: the description of the
// zone and the conversion of one instant by the zone's rules.
#pragma once

#include "plat/Calendar.h"
#include "plat/LocalTime.h"
#include "plat/Ticks.h"

namespace plat {

/// Reads the zone; called once per process.
TimeZoneData readTimeZoneData();

/// The local date and time of the whole-second instant `utc`: the fields up to
/// tm_wday. False when the platform cannot convert it.
bool platformLocalFields(Ticks utc, DateFields& local) noexcept;

} // namespace plat
