// Timestamps as text: the ISO 8601 forms for machines and the short clock
// form of compact log lines. They write their digits themselves instead of
// going through printf, because the log makes one for every line.
#pragma once

#include "plat/Calendar.h"
#include "plat/DString.h"
#include "plat/Ticks.h"

namespace plat {

/// Replaces `result` with "YYYY-MM-DDTHH:MM:SS" of the fields, and ".mmm" of
/// the milliseconds of `ticks` when `withMillis`. A year beyond 32 bits gives
/// "<date error>" and false.
bool formatIsoFields(DString& result, const DateFields& fields, Ticks ticks, bool withMillis);

/// The UTC form, ending in "Z": the timestamp of full log lines.
void formatIsoUtc(DString& result, Ticks ticks, bool withMillis);

/// The ISO form of local `fields` of the instant `ticks`, ending in the offset
/// "+HH:MM" or "-HH:MM" between the two. An offset of a year or more is a
/// fatal assertion.
DString formatIsoLocal(const DateFields& fields, Ticks ticks, bool withMillis);

/// Replaces `result` with "HH:MM:SS.mmm" of the fields' time of day and the
/// milliseconds of `ticks`.
void formatClockTime(DString& result, const DateFields& fields, Ticks ticks);

/// formatClockTime of the local time of `ticks`: the timestamp of compact log lines.
void formatLocalClockTime(DString& result, Ticks ticks);

} // namespace plat
