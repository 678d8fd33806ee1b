// The calendar arithmetic and the timestamp texts, checked against the C
// library over the whole range of ticks and at the dates that usually go wrong.

#include "plat/Calendar.h"

#include "ErrorText.h"

#include "plat/Exception.h"
#include "plat/IsoTime.h"

#include <gtest/gtest.h>
#include <time.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <sstream>
#include <string>

namespace plat {
namespace {

using test::errorOf;

constexpr Ticks minTicks = std::numeric_limits<Ticks>::min();
constexpr Ticks maxTicks = std::numeric_limits<Ticks>::max();
constexpr std::int32_t min32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t max32 = std::numeric_limits<std::int32_t>::max();

// The fields of a struct tm or DateFields, which share their names.
template <class Fields>
std::string show(const Fields& f) {
  std::ostringstream out;
  out << f.tm_year << "/" << f.tm_mon << "/" << f.tm_mday << " " << f.tm_hour << ":" << f.tm_min
      << ":" << f.tm_sec << " wday " << f.tm_wday << " yday " << f.tm_yday;
  return out.str();
}

tm libraryUtc(Ticks ticks) {
  time_t seconds = static_cast<time_t>(floorDiv(ticks, ticksPerSecond) - unixEpochSeconds);
  tm fields{};
  EXPECT_NE(gmtime_r(&seconds, &fields), nullptr) << ticks;
  return fields;
}

DateFields fieldsOf(std::int32_t tmYear, std::int32_t tmMon, std::int32_t mday,
                    std::int32_t hour = 0, std::int32_t min = 0, std::int32_t sec = 0) {
  return {sec, min, hour, mday, tmMon, tmYear}; // the fields in their order
}

// Seconds since 1601 of UTC fields, by the C library.
std::int64_t librarySeconds(const DateFields& f) {
  tm fields{f.tm_sec, f.tm_min, f.tm_hour, f.tm_mday, f.tm_mon, f.tm_year, 0, 0, 0, 0, nullptr};
  return static_cast<std::int64_t>(timegm(&fields)) + unixEpochSeconds;
}

DateFields utcFields(Ticks ticks) {
  DateFields fields;
  ticksToUtc(fields, ticks);
  return fields;
}

std::string isoUtc(Ticks ticks, bool withMillis) {
  DString text("previous content that must go");
  formatIsoUtc(text, ticks, withMillis);
  return text.get();
}

TEST(CalendarRules, ChecksEachField) {
  // The leap years themselves are compared with the library below.
  struct {
    std::int32_t year, month, day, hour, minute, second;
    bool valid;
  } cases[] = {{2000, 2, 29, 0, 0, 0, true},  {1900, 2, 29, 0, 0, 0, false},
               {2023, 4, 31, 0, 0, 0, false}, {2023, 1, 0, 0, 0, 0, false},
               {2023, 0, 1, 0, 0, 0, false},  {2023, 13, 1, 0, 0, 0, false},
               {2023, 1, 1, 24, 0, 0, false}, {2023, 1, 1, 0, 60, 0, false},
               {2023, 1, 1, 0, 0, 60, true},  {2023, 1, 1, 0, 0, 61, false},
               {2023, 1, 1, 0, 0, -1, false}, {5'000'000, 12, 31, 23, 59, 59, true}};
  for (const auto& c : cases)
    EXPECT_EQ(isValidDateTime(c.year, c.month, c.day, c.hour, c.minute, c.second), c.valid)
        << c.year << "-" << c.month << "-" << c.day << " " << c.hour << ":" << c.minute << ":"
        << c.second;
}

TEST(CalendarKnownDates, EpochFloorsAndLeapSeconds) {
  EXPECT_EQ(makeTicks(1601, 1, 1, 0, 0, 0), 0);
  EXPECT_EQ(utcFields(0).tm_wday, 1) << "1601 began on a Monday";
  EXPECT_EQ(makeTicks(1970, 1, 1, 0, 0, 0), unixEpochSeconds * ticksPerSecond);
  // Negative ticks are floored, so the time of day stays positive.
  struct {
    Ticks ticks;
    const char* text;
  } cases[] = {{0, "1601-01-01T00:00:00.000Z"},
               {-1, "1600-12-31T23:59:59.999Z"},
               {-ticksPerDay, "1600-12-31T00:00:00.000Z"},
               {-ticksPerSecond - ticksPerMillisecond, "1600-12-31T23:59:58.999Z"},
               {maxTicks, "30828-09-14T02:48:05.477Z"},
               {makeTicks(123, 4, 5, 6, 7, 8), "0123-04-05T06:07:08.000Z"}};
  for (const auto& c : cases)
    EXPECT_EQ(isoUtc(c.ticks, true), c.text) << c.ticks;
  EXPECT_EQ(isoUtc(0, false), "1601-01-01T00:00:00Z");
  // Second 60 is second 0 of the next minute.
  for (std::int32_t year : {2016, 1600, 1601}) {
    Ticks leap = 0;
    ASSERT_TRUE(tryMakeTicks(leap, year, 12, 31, 23, 59, 60));
    EXPECT_EQ(leap, makeTicks(year + 1, 1, 1, 0, 0, 0)) << year;
  }
  DateFields fields{.tm_isdst = 1, .tm_gmtoff = 3600};
  ticksToUtc(fields, 0);
  EXPECT_EQ(fields.tm_isdst, 0);
  EXPECT_EQ(fields.tm_gmtoff, 0);
  EXPECT_STREQ(fields.tm_zone, "UTC");
}

TEST(CalendarConversion, MatchesTheLibraryOverTheWholeRange) {
  std::mt19937_64 random(42);
  std::uniform_int_distribution<Ticks> whole(minTicks, maxTicks);
  std::uniform_int_distribution<Ticks> usual(0, makeTicks(10000, 1, 1, 0, 0, 0) - 1);
  std::uniform_int_distribution<Ticks> near1601(-400 * 366 * ticksPerDay, 400 * 366 * ticksPerDay);
  for (int i = 0; i < 20'000; ++i) {
    for (Ticks ticks : {whole(random), usual(random), near1601(random)}) {
      DateFields fields = utcFields(ticks);
      ASSERT_EQ(show(fields), show(libraryUtc(ticks))) << ticks;
      // The lowest second of the range starts below it, so it cannot round-trip.
      Ticks second = ticks - floorMod(ticks, ticksPerSecond);
      ASSERT_EQ(ticks < minTicks + ticksPerSecond ? second : fieldsToTicks(fields), second);
    }
    // The log's timestamp against strftime, in the years of four digits.
    Ticks ticks = usual(random);
    tm expected = libraryUtc(ticks);
    char text[64];
    std::size_t length = strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &expected);
    ASSERT_EQ(isoUtc(ticks, false), std::string(text, length) + "Z");
    std::snprintf(text + length, sizeof text - length, ".%03dZ",
                  static_cast<int>(floorMod(ticks, ticksPerSecond) / ticksPerMillisecond));
    ASSERT_EQ(isoUtc(ticks, true), text);
  }
  for (Ticks edge : {minTicks, maxTicks, Ticks{-1}, Ticks{1}})
    EXPECT_EQ(show(utcFields(edge)), show(libraryUtc(edge))) << edge;
}

TEST(CalendarMakeTicks, MatchesTheLibraryForRandomDates) {
  std::mt19937_64 random(1601);
  std::uniform_int_distribution<std::int32_t> years(-20'000, 29'000), anyYear(min32, max32),
      months(1, 12), hours(0, 23), sixty(0, 59);
  for (int i = 0; i < 20'000; ++i) {
    std::int32_t year = years(random), month = months(random);
    // Day 0 of the next month is the last day of this one.
    Ticks last = librarySeconds(fieldsOf(year - 1900, month, 0)) * ticksPerSecond;
    ASSERT_EQ(daysInMonth(year, month), libraryUtc(last).tm_mday) << year << "-" << month;
    std::int32_t day = 1 + static_cast<std::int32_t>(random() % daysInMonth(year, month));
    DateFields f =
        fieldsOf(year - 1900, month - 1, day, hours(random), sixty(random), sixty(random));
    Ticks ticks = 0;
    ASSERT_TRUE(tryMakeTicks(ticks, year, month, day, f.tm_hour, f.tm_min, f.tm_sec));
    ASSERT_EQ(ticks, librarySeconds(f) * ticksPerSecond) << year << "-" << month << "-" << day;
    ASSERT_EQ(dayOfYear(year, month, day), libraryUtc(ticks).tm_yday);
    // Seconds take the year out in whole 400-year cycles, for any 32-bit year.
    f.tm_year = i % 100 ? anyYear(random) : (i % 200 ? min32 : max32);
    f.tm_mday = std::min(day, 28);
    ASSERT_EQ(fieldsToSeconds(f), librarySeconds(f)) << f.tm_year;
  }
}

TEST(CalendarMakeTicks, RefusesWhatIsOutsideTheRange) {
  Ticks ticks = 0;
  EXPECT_FALSE(tryMakeTicks(ticks, 1'000'001, 1, 1, 0, 0, 0));
  EXPECT_FALSE(tryMakeTicks(ticks, -1'000'001, 1, 1, 0, 0, 0));
  EXPECT_FALSE(tryMakeTicks(ticks, 1'000'000, 1, 1, 0, 0, 0)); // a valid year, but too far
  EXPECT_FALSE(tryMakeTicks(ticks, 2023, 2, 29, 0, 0, 0));
  auto makeSecondAfter = [&](Ticks instant, std::int32_t seconds) {
    DateFields f = utcFields(instant);
    return tryMakeTicks(ticks, f.tm_year + 1900, f.tm_mon + 1, f.tm_mday, f.tm_hour, f.tm_min,
                        f.tm_sec + seconds);
  };
  // The last whole second of the range is made and the one after it is not;
  // at the bottom the second holding the smallest ticks starts below the range.
  ASSERT_TRUE(makeSecondAfter(maxTicks, 0));
  EXPECT_EQ(ticks, maxTicks - maxTicks % ticksPerSecond);
  EXPECT_FALSE(makeSecondAfter(maxTicks, 1));
  EXPECT_FALSE(makeSecondAfter(minTicks, 0));
  ASSERT_TRUE(makeSecondAfter(minTicks, 1));
  EXPECT_EQ(ticks, (floorDiv(minTicks, ticksPerSecond) + 1) * ticksPerSecond);

  EXPECT_EQ(errorOf([] { makeTicks(2021, 2, 30, 1, 2, 3); }), "invalid date (2021-02-30T01:02:03)");
  EXPECT_EQ(errorOf([] { fieldsToTicks(fieldsOf(max32, 0, 1)); }),
            "invalid date (2147483647-01-01T00:00:00)");
  EXPECT_EQ(fieldsToTicks(fieldsOf(-299, 0, 1)), 0);
  EXPECT_THROW(fieldsToTicks(fieldsOf(100, 12, 1)), Exception);
  EXPECT_THROW(fieldsToSeconds(fieldsOf(5000, 1, 30)), Exception);
}

TEST(CalendarUnixToTicks, ShiftsAndSaturates) {
  constexpr std::int64_t maxSeconds = maxTicks / ticksPerSecond, epoch = unixEpochSeconds;
  struct {
    std::int64_t seconds, nanoseconds;
    Ticks ticks;
  } cases[] = {{0, 0, epoch * ticksPerSecond},
               {-epoch - 1, 500'000'000, -ticksPerSecond / 2},
               {maxSeconds - epoch, 0, maxSeconds * ticksPerSecond},
               {maxSeconds - epoch + 1, 0, maxTicks},
               {-maxSeconds - epoch, 0, -maxSeconds * ticksPerSecond},
               {-maxSeconds - epoch - 1, 0, minTicks},
               {std::numeric_limits<std::int64_t>::max(), 999'999'999, maxTicks},
               {std::numeric_limits<std::int64_t>::min(), 999'999'999, minTicks + 9'999'999}};
  for (const auto& c : cases) {
    EXPECT_EQ(unixToTicks(c.seconds, c.nanoseconds), c.ticks) << c.seconds;
    EXPECT_EQ(unixToTicks(c.seconds), unixToTicks(c.seconds, 0)) << c.seconds;
  }
}

TEST(IsoTimeText, FieldsArePaddedLikePrintfWhateverTheirValues) {
  DString text("old");
  ASSERT_TRUE(formatIsoFields(text, fieldsOf(-1905, -1, -7, 100, min32, max32), -1, true));
  EXPECT_STREQ(text.get(), "-005-00--7T100:-2147483648:2147483647.999");
  ASSERT_TRUE(formatIsoFields(text, fieldsOf(max32 - 1900, 11, 31, 0, 0, 0), 0, false));
  EXPECT_STREQ(text.get(), "2147483647-12-31T00:00:00");
  DateFields tooLate = fieldsOf(max32 - 1900 + 1, 0, 1); // a year beyond 32 bits
  EXPECT_FALSE(formatIsoFields(text, tooLate, 0, true));
  EXPECT_STREQ(text.get(), "<date error>");
  EXPECT_STREQ(formatIsoLocal(tooLate, 0, true).get(), "<date error>");
}

TEST(IsoTimeText, LocalFormEndsInTheOffsetOfTheFieldsFromTheInstant) {
  Ticks instant = makeTicks(2021, 3, 4, 5, 6, 7) + 89 * ticksPerMillisecond;
  auto local = [&](Ticks shift) {
    return formatIsoLocal(utcFields(instant + shift), instant, true);
  };
  EXPECT_STREQ(local(5 * ticksPerHour + 30 * ticksPerMinute).get(),
               "2021-03-04T10:36:07.089+05:30");
  EXPECT_STREQ(local(-3 * ticksPerHour - 45 * ticksPerMinute).get(),
               "2021-03-04T01:21:07.089-03:45");
  EXPECT_STREQ(local(-364 * ticksPerDay).get(), "2020-03-05T05:06:07.089-8736:00");
  EXPECT_STREQ(formatIsoLocal(utcFields(instant), instant, false).get(),
               "2021-03-04T05:06:07+00:00");
  // Half a second before 1601 the fields and the instant share their second.
  EXPECT_STREQ(formatIsoLocal(utcFields(-ticksPerSecond / 2), -ticksPerSecond / 2, true).get(),
               "1600-12-31T23:59:59.500+00:00");
  EXPECT_DEATH(local(365 * ticksPerDay), "offSecs < 365\\*86400");
}

TEST(IsoTimeText, ClockFormOfCompactLogLines) {
  DString text("a longer text that is replaced");
  formatClockTime(text, fieldsOf(0, 0, 1, 1, 2, 3), 45 * ticksPerMillisecond);
  EXPECT_STREQ(text.get(), "01:02:03.045");
  formatClockTime(text, fieldsOf(0, 0, 1, 23, 59, 60), 999 * ticksPerMillisecond + 9'999);
  EXPECT_STREQ(text.get(), "23:59:60.999");
  formatClockTime(text, fieldsOf(0, 0, 1, 0, 0, 0), -1);
  EXPECT_STREQ(text.get(), "00:00:00.999");
}

} // namespace
} // namespace plat
