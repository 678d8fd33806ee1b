// Local time in a zone with daylight saving time. The zone is read once per
// process, so this runs as a program of its own that sets TZ before anything
// else: Central European Time by its POSIX rule, which needs no zone database.

#include "plat/LocalTime.h"

#include "plat/Calendar.h"
#include "plat/IsoTime.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include <cstdint>
#include <random>
#include <sstream>
#include <string>

namespace plat {
namespace {

const bool zoneSet = [] {
  setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
  tzset();
  return true;
}();

DateFields localFields(Ticks ticks) {
  DateFields fields;
  ticksToLocal(fields, ticks);
  return fields;
}

// The fields of a struct tm or DateFields, which share their names.
template <class Fields>
std::string show(const Fields& f) {
  std::ostringstream out;
  out << f.tm_year << "/" << f.tm_mon << "/" << f.tm_mday << " " << f.tm_hour << ":" << f.tm_min
      << ":" << f.tm_sec << " wday " << f.tm_wday << " yday " << f.tm_yday << " dst " << f.tm_isdst
      << " " << f.tm_gmtoff << " " << f.tm_zone;
  return out.str();
}

TEST(LocalTimeConversion, MatchesTheLibraryOverManyYears) {
  ASSERT_TRUE(zoneSet);
  std::mt19937_64 random(1);
  std::uniform_int_distribution<Ticks> instants(makeTicks(1700, 1, 1, 0, 0, 0),
                                                makeTicks(9999, 12, 30, 0, 0, 0));
  for (int i = 0; i < 20'000; ++i) {
    Ticks ticks = instants(random);
    time_t seconds = static_cast<time_t>(ticks / ticksPerSecond - unixEpochSeconds);
    tm expected{};
    ASSERT_NE(localtime_r(&seconds, &expected), nullptr);
    ASSERT_EQ(show(localFields(ticks)), show(expected)) << ticks;
  }
}

TEST(LocalTimeConversion, NamesSeasonsAndChangesInBiasesAndOffsets) {
  // Around the changes on the last Sundays of March and October (when 02:00 to
  // 02:59 local time happens twice), and at the turn of the year.
  struct {
    Ticks utc;
    const char* local;
    const char* zone;
  } cases[] = {{makeTicks(2021, 7, 1, 12, 0, 0), "2021-07-01T14:00:00.123+02:00", "CEST"},
               {makeTicks(2021, 3, 28, 0, 59, 59), "2021-03-28T01:59:59.123+01:00", "CET"},
               {makeTicks(2021, 3, 28, 1, 0, 0), "2021-03-28T03:00:00.123+02:00", "CEST"},
               {makeTicks(2021, 10, 31, 0, 30, 0), "2021-10-31T02:30:00.123+02:00", "CEST"},
               {makeTicks(2021, 10, 31, 1, 30, 0), "2021-10-31T02:30:00.123+01:00", "CET"},
               {makeTicks(2021, 12, 31, 23, 30, 0), "2022-01-01T00:30:00.123+01:00", "CET"}};
  for (const auto& c : cases) {
    Ticks ticks = c.utc + 123 * ticksPerMillisecond;
    DateFields fields = localFields(ticks);
    EXPECT_STREQ(formatIsoLocal(fields, ticks, true).get(), c.local);
    EXPECT_STREQ(fields.tm_zone, c.zone) << c.local;
    EXPECT_EQ(fields.tm_isdst, c.zone[2] == 'S') << c.local;
    DString clock;
    formatLocalClockTime(clock, ticks);
    EXPECT_EQ(clock.get(), std::string(c.local).substr(11, 12)) << "the time of day";
  }
  const TimeZoneData& zone = timeZoneData();
  EXPECT_FALSE(zone.failed);
  EXPECT_EQ(zone.bias, -60);
  EXPECT_EQ(zone.standardBias, 0);
  EXPECT_EQ(zone.daylightBias, -60);
  EXPECT_STREQ(zone.standardName.get(), "CET");
  EXPECT_STREQ(zone.daylightName.get(), "CEST");
  // Outside the years 1601 to 9999 the fields are clamped to their ends.
  EXPECT_EQ(show(localFields(-100 * ticksPerDay)), "-299/0/1 1:0:0 wday 1 yday 0 dst 0 3600 CET");
  EXPECT_EQ(show(localFields(makeTicks(20000, 6, 1, 0, 0, 0))),
            "8100/0/1 1:0:0 wday 6 yday 0 dst 0 3600 CET");
}

} // namespace
} // namespace plat
