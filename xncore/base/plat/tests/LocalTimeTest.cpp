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

TEST(LocalTimeZone, DescribesTheZoneInBiases) {
  ASSERT_TRUE(zoneSet);
  const TimeZoneData& zone = timeZoneData();
  EXPECT_FALSE(zone.failed);
  EXPECT_EQ(zone.bias, -60);
  EXPECT_EQ(zone.standardBias, 0);
  EXPECT_EQ(zone.daylightBias, -60);
  EXPECT_STREQ(zone.standardName.get(), "CET");
  EXPECT_STREQ(zone.daylightName.get(), "CEST");
  EXPECT_EQ(&zone, &timeZoneData()) << "read once";
}

TEST(LocalTimeConversion, MatchesTheLibraryOverManyYears) {
  std::mt19937_64 random(1);
  std::uniform_int_distribution<Ticks> instants(makeTicks(1700, 1, 1, 0, 0, 0),
                                                makeTicks(9999, 12, 30, 0, 0, 0));
  for (int i = 0; i < 20'000; ++i) {
    Ticks ticks = instants(random);
    time_t seconds = static_cast<time_t>(ticks / ticksPerSecond - unixEpochSeconds);
    tm expected{};
    ASSERT_NE(localtime_r(&seconds, &expected), nullptr);
    DateFields fields = localFields(ticks);
    ASSERT_EQ(fields.tm_year, expected.tm_year) << ticks;
    ASSERT_EQ(fields.tm_mon, expected.tm_mon) << ticks;
    ASSERT_EQ(fields.tm_mday, expected.tm_mday) << ticks;
    ASSERT_EQ(fields.tm_hour, expected.tm_hour) << ticks;
    ASSERT_EQ(fields.tm_min, expected.tm_min) << ticks;
    ASSERT_EQ(fields.tm_sec, expected.tm_sec) << ticks;
    ASSERT_EQ(fields.tm_wday, expected.tm_wday) << ticks;
    ASSERT_EQ(fields.tm_yday, expected.tm_yday) << ticks;
    ASSERT_EQ(fields.tm_isdst, expected.tm_isdst) << ticks;
    ASSERT_EQ(fields.tm_gmtoff, expected.tm_gmtoff) << ticks;
    ASSERT_STREQ(fields.tm_zone, expected.tm_zone) << ticks;
  }
}

TEST(LocalTimeConversion, NamesTheSeason) {
  struct Case {
    Ticks utc;
    std::int32_t hour, isdst, offset;
    const char* zone;
  } cases[] = {
      {makeTicks(2021, 1, 15, 12, 0, 0), 13, 0, 3600, "CET"},
      {makeTicks(2021, 7, 1, 12, 0, 0), 14, 1, 7200, "CEST"},
      // The last Sunday of March, one second before and at 01:00 UTC.
      {makeTicks(2021, 3, 28, 0, 59, 59), 1, 0, 3600, "CET"},
      {makeTicks(2021, 3, 28, 1, 0, 0), 3, 1, 7200, "CEST"},
      // The last Sunday of October: 02:00 to 02:59 local happens twice.
      {makeTicks(2021, 10, 31, 0, 30, 0), 2, 1, 7200, "CEST"},
      {makeTicks(2021, 10, 31, 1, 30, 0), 2, 0, 3600, "CET"},
  };
  for (const Case& c : cases) {
    DateFields fields = localFields(c.utc + 123 * ticksPerMillisecond);
    EXPECT_EQ(fields.tm_hour, c.hour) << c.utc;
    EXPECT_EQ(fields.tm_isdst, c.isdst) << c.utc;
    EXPECT_EQ(fields.tm_gmtoff, c.offset) << c.utc;
    EXPECT_STREQ(fields.tm_zone, c.zone) << c.utc;
  }
}

TEST(LocalTimeConversion, ClampsToTheYears1601To9999) {
  DateFields early = localFields(-100 * ticksPerDay);
  EXPECT_EQ(early.tm_year + 1900, 1601);
  EXPECT_EQ(early.tm_yday, 0);
  EXPECT_EQ(early.tm_hour, 1);
  EXPECT_EQ(early.tm_gmtoff, 3600);

  DateFields late = localFields(makeTicks(20000, 6, 1, 0, 0, 0));
  EXPECT_EQ(late.tm_year + 1900, 10000);
  EXPECT_EQ(late.tm_mon, 0);
  EXPECT_EQ(late.tm_mday, 1);
  EXPECT_EQ(late.tm_hour, 1);
}

TEST(LocalTimeText, FormatsWithTheOffset) {
  Ticks summer = makeTicks(2021, 7, 1, 12, 0, 0) + 45 * ticksPerMillisecond;
  EXPECT_STREQ(formatIsoLocal(localFields(summer), summer, true).get(),
               "2021-07-01T14:00:00.045+02:00");
  Ticks winter = makeTicks(2021, 12, 31, 23, 30, 0);
  EXPECT_STREQ(formatIsoLocal(localFields(winter), winter, false).get(),
               "2022-01-01T00:30:00+01:00");

  DString text;
  formatLocalClockTime(text, summer);
  EXPECT_STREQ(text.get(), "14:00:00.045");
  formatLocalClockTime(text, winter + 999 * ticksPerMillisecond);
  EXPECT_STREQ(text.get(), "00:30:00.999");
}

} // namespace
} // namespace plat
