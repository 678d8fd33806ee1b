// The text forms of timestamps, compared with what the C library's strftime
// and snprintf make of the same instants and fields.

#include "plat/IsoTime.h"

#include "plat/Calendar.h"

#include <gtest/gtest.h>
#include <time.h>

#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace plat {
namespace {

std::string isoUtc(Ticks ticks, bool withMillis) {
  DString text("previous content that must go");
  formatIsoUtc(text, ticks, withMillis);
  return text.get();
}

// The same instant through gmtime_r and strftime.
std::string libraryIsoUtc(Ticks ticks, bool withMillis) {
  time_t seconds = static_cast<time_t>(floorDiv(ticks, ticksPerSecond) - unixEpochSeconds);
  tm fields{};
  gmtime_r(&seconds, &fields);
  char text[64];
  std::size_t length = strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &fields);
  if (withMillis)
    length += static_cast<std::size_t>(
        std::snprintf(text + length, sizeof text - length, ".%03d",
                      static_cast<int>(floorMod(ticks, ticksPerSecond) / ticksPerMillisecond)));
  std::snprintf(text + length, sizeof text - length, "Z");
  return text;
}

TEST(IsoTimeUtc, StartsAt1601) {
  EXPECT_EQ(isoUtc(0, true), "1601-01-01T00:00:00.000Z");
  EXPECT_EQ(isoUtc(0, false), "1601-01-01T00:00:00Z");
}

TEST(IsoTimeUtc, MatchesStrftimeForTheYears1601To9999) {
  std::mt19937_64 random(2024);
  std::uniform_int_distribution<Ticks> instants(0, makeTicks(9999, 12, 31, 23, 59, 59) +
                                                       ticksPerSecond - 1);
  for (int i = 0; i < 20'000; ++i) {
    Ticks ticks = instants(random);
    ASSERT_EQ(isoUtc(ticks, true), libraryIsoUtc(ticks, true)) << ticks;
    ASSERT_EQ(isoUtc(ticks, false), libraryIsoUtc(ticks, false)) << ticks;
  }
}

TEST(IsoTimeUtc, FloorsTheMillisecondsOfNegativeTicks) {
  EXPECT_EQ(isoUtc(-1, true), "1600-12-31T23:59:59.999Z");
  EXPECT_EQ(isoUtc(-ticksPerSecond, true), "1600-12-31T23:59:59.000Z");
  EXPECT_EQ(isoUtc(-ticksPerSecond - ticksPerMillisecond, true), "1600-12-31T23:59:58.999Z");
}

TEST(IsoTimeUtc, WritesTheYearsBeyond9999WithAllTheirDigits) {
  EXPECT_EQ(isoUtc(std::numeric_limits<Ticks>::max(), true), "30828-09-14T02:48:05.477Z");
  EXPECT_EQ(isoUtc(makeTicks(123, 4, 5, 6, 7, 8), false), "0123-04-05T06:07:08Z");
}

DateFields randomFields(std::mt19937_64& random) {
  std::uniform_int_distribution<std::int32_t> any(std::numeric_limits<std::int32_t>::min(),
                                                  std::numeric_limits<std::int32_t>::max());
  std::uniform_int_distribution<std::int32_t> small(-120, 120);
  // Mostly small values, which are padded, and now and then any 32-bit value.
  auto pick = [&] { return random() % 4 == 0 ? any(random) : small(random); };
  DateFields fields;
  fields.tm_year = pick();
  fields.tm_mon = pick();
  fields.tm_mday = pick();
  fields.tm_hour = pick();
  fields.tm_min = pick();
  fields.tm_sec = pick();
  return fields;
}

TEST(IsoTimeFields, PadsLikePrintfForAnyFieldValues) {
  std::mt19937_64 random(8601);
  for (int i = 0; i < 20'000; ++i) {
    DateFields fields = randomFields(random);
    if (fields.tm_year > std::numeric_limits<std::int32_t>::max() - 1900)
      continue;
    Ticks ticks = static_cast<Ticks>(random());
    char expected[200];
    std::snprintf(expected, sizeof expected, "%04lld-%02lld-%02dT%02d:%02d:%02d.%03d",
                  fields.tm_year + 1900LL, fields.tm_mon + 1LL, fields.tm_mday, fields.tm_hour,
                  fields.tm_min, fields.tm_sec,
                  static_cast<int>(floorMod(ticks, ticksPerSecond) / ticksPerMillisecond));
    DString text;
    ASSERT_TRUE(formatIsoFields(text, fields, ticks, true));
    ASSERT_STREQ(text.get(), expected);
  }
}

TEST(IsoTimeFields, RefusesAYearBeyondThirtyTwoBits) {
  DString text("old");
  DateFields fields;
  fields.tm_year = std::numeric_limits<std::int32_t>::max() - 1900 + 1;
  EXPECT_FALSE(formatIsoFields(text, fields, 0, true));
  EXPECT_STREQ(text.get(), "<date error>");
  EXPECT_STREQ(formatIsoLocal(fields, 0, true).get(), "<date error>");

  fields.tm_year = std::numeric_limits<std::int32_t>::max() - 1900;
  EXPECT_TRUE(formatIsoFields(text, fields, 0, false));
  EXPECT_STREQ(text.get(), "2147483647-01-01T00:00:00");
}

DateFields utcFields(Ticks ticks) {
  DateFields fields;
  ticksToUtc(fields, ticks);
  return fields;
}

TEST(IsoTimeLocal, AppendsTheOffsetOfTheFieldsFromTheInstant) {
  Ticks instant = makeTicks(2021, 3, 4, 5, 6, 7) + 89 * ticksPerMillisecond;
  struct Case {
    Ticks shift;
    const char* text;
  } cases[] = {
      {0, "2021-03-04T05:06:07.089+00:00"},
      {5 * ticksPerHour + 30 * ticksPerMinute, "2021-03-04T10:36:07.089+05:30"},
      {-(3 * ticksPerHour + 45 * ticksPerMinute), "2021-03-04T01:21:07.089-03:45"},
      {14 * ticksPerHour, "2021-03-04T19:06:07.089+14:00"},
      {-(364 * ticksPerDay), "2020-03-05T05:06:07.089-8736:00"},
  };
  for (const Case& c : cases)
    EXPECT_STREQ(formatIsoLocal(utcFields(instant + c.shift), instant, true).get(), c.text);
  EXPECT_STREQ(formatIsoLocal(utcFields(instant), instant, false).get(),
               "2021-03-04T05:06:07+00:00");
}

TEST(IsoTimeLocal, FloorsTheInstantToItsSecond) {
  // Half a second before 1601: the fields and the instant are in the same
  // second, so the offset is zero and not minus one second.
  Ticks instant = -ticksPerSecond / 2;
  EXPECT_STREQ(formatIsoLocal(utcFields(instant), instant, true).get(),
               "1600-12-31T23:59:59.500+00:00");
}

TEST(IsoTimeLocal, AnOffsetOfAYearIsFatal) {
  Ticks instant = makeTicks(2021, 6, 1, 0, 0, 0);
  EXPECT_DEATH(formatIsoLocal(utcFields(instant + 365 * ticksPerDay), instant, false),
               "offSecs < 365\\*86400 && offSecs > -365\\*86400");
  EXPECT_DEATH(formatIsoLocal(utcFields(instant - 365 * ticksPerDay), instant, false),
               "offSecs < 365\\*86400 && offSecs > -365\\*86400");
}

TEST(IsoTimeClock, WritesTheTimeOfDayWithMilliseconds) {
  struct Case {
    std::int32_t hour, minute, second;
    Ticks ticks;
    const char* text;
  } cases[] = {
      {1, 2, 3, 45 * ticksPerMillisecond, "01:02:03.045"},
      {23, 59, 60, 999 * ticksPerMillisecond + 9'999, "23:59:60.999"},
      {0, 0, 0, -1, "00:00:00.999"},
      {12, 30, 0, 7 * ticksPerSecond + 120 * ticksPerMillisecond, "12:30:00.120"},
  };
  DString text("a longer text that is replaced");
  for (const Case& c : cases) {
    DateFields fields;
    fields.tm_hour = c.hour;
    fields.tm_min = c.minute;
    fields.tm_sec = c.second;
    formatClockTime(text, fields, c.ticks);
    EXPECT_STREQ(text.get(), c.text);
  }
}

} // namespace
} // namespace plat
