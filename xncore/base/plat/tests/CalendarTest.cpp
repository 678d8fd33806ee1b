// The calendar arithmetic, checked against the C library's own conversions
// (gmtime_r and timegm) over the whole range of ticks, and at the dates where
// calendars usually go wrong.

#include "plat/Calendar.h"

#include "plat/Exception.h"

#include <gtest/gtest.h>
#include <time.h>

#include <cstdint>
#include <limits>
#include <random>

namespace plat {
namespace {

constexpr Ticks minTicks = std::numeric_limits<Ticks>::min();
constexpr Ticks maxTicks = std::numeric_limits<Ticks>::max();

// The C library's UTC fields of the second that holds `ticks`.
tm libraryFields(Ticks ticks) {
  time_t seconds = static_cast<time_t>(floorDiv(ticks, ticksPerSecond) - unixEpochSeconds);
  tm fields{};
  EXPECT_NE(gmtime_r(&seconds, &fields), nullptr) << ticks;
  return fields;
}

// The C library's ticks of a UTC date.
std::int64_t librarySeconds(std::int64_t tmYear, int tmMon, int mday, int hour, int minute,
                            int second) {
  tm fields{};
  fields.tm_year = static_cast<int>(tmYear);
  fields.tm_mon = tmMon;
  fields.tm_mday = mday;
  fields.tm_hour = hour;
  fields.tm_min = minute;
  fields.tm_sec = second;
  return static_cast<std::int64_t>(timegm(&fields)) + unixEpochSeconds;
}

struct Split {
  std::int32_t year, month, day, hour, minute, second, wday, yday;
};

Split split(Ticks ticks) {
  Split s{};
  splitTicks(ticks, s.year, s.month, s.day, s.hour, s.minute, s.second, s.wday, s.yday);
  return s;
}

void expectSameAsLibrary(Ticks ticks) {
  tm expected = libraryFields(ticks);
  Split s = split(ticks);
  EXPECT_EQ(s.year, expected.tm_year + 1900) << ticks;
  EXPECT_EQ(s.month, expected.tm_mon + 1) << ticks;
  EXPECT_EQ(s.day, expected.tm_mday) << ticks;
  EXPECT_EQ(s.hour, expected.tm_hour) << ticks;
  EXPECT_EQ(s.minute, expected.tm_min) << ticks;
  EXPECT_EQ(s.second, expected.tm_sec) << ticks;
  EXPECT_EQ(s.wday, expected.tm_wday) << ticks;
  EXPECT_EQ(s.yday, expected.tm_yday) << ticks;
}

TEST(CalendarLeapYear, FollowsTheGregorianRule) {
  struct Case {
    std::int32_t year;
    bool leap;
  } cases[] = {{1600, true}, {1601, false}, {1604, true},  {1700, false}, {1900, false},
               {2000, true}, {2023, false}, {2024, true},  {2100, false}, {2400, true},
               {0, true},    {-4, true},    {-100, false}, {-400, true},  {-1, false}};
  for (const Case& c : cases)
    EXPECT_EQ(isLeapYear(c.year), c.leap) << c.year;
}

TEST(CalendarDayOfYear, MatchesTheLibraryForEveryDayOfALeapAndACommonYear) {
  for (std::int32_t year : {1900, 2000, 2023, 2024}) {
    for (std::int32_t month = 1; month <= 12; ++month) {
      for (std::int32_t day = 1; day <= daysInMonth(year, month); ++day) {
        tm fields{};
        fields.tm_year = year - 1900;
        fields.tm_mon = month - 1;
        fields.tm_mday = day;
        timegm(&fields);
        EXPECT_EQ(dayOfYear(year, month, day), fields.tm_yday)
            << year << "-" << month << "-" << day;
      }
    }
  }
}

TEST(CalendarValidity, ChecksEachField) {
  struct Case {
    std::int32_t year, month, day, hour, minute, second;
    bool valid;
  } cases[] = {
      {2000, 2, 29, 0, 0, 0, true},     {1900, 2, 29, 0, 0, 0, false},
      {2023, 2, 29, 0, 0, 0, false},    {2024, 2, 29, 0, 0, 0, true},
      {2023, 4, 30, 0, 0, 0, true},     {2023, 4, 31, 0, 0, 0, false},
      {2023, 12, 31, 23, 59, 59, true}, {2023, 1, 0, 0, 0, 0, false},
      {2023, 0, 1, 0, 0, 0, false},     {2023, 13, 1, 0, 0, 0, false},
      {2023, 1, 1, 24, 0, 0, false},    {2023, 1, 1, 0, 60, 0, false},
      {2023, 1, 1, 0, 0, 60, true},     {2023, 1, 1, 0, 0, 61, false},
      {2023, 1, 1, -1, 0, 0, false},    {2023, 1, 1, 0, -1, 0, false},
      {2023, 1, 1, 0, 0, -1, false},    {5'000'000, 1, 1, 0, 0, 0, true},
  };
  for (const Case& c : cases)
    EXPECT_EQ(isValidDateTime(c.year, c.month, c.day, c.hour, c.minute, c.second), c.valid)
        << c.year << "-" << c.month << "-" << c.day << "T" << c.hour << ":" << c.minute << ":"
        << c.second;
}

TEST(CalendarMakeTicks, StartsAt1601OnAMonday) {
  EXPECT_EQ(makeTicks(1601, 1, 1, 0, 0, 0), 0);
  Split s = split(0);
  EXPECT_EQ(s.wday, 1);
  EXPECT_EQ(s.year, 1601);
  EXPECT_EQ(s.month, 1);
  EXPECT_EQ(s.day, 1);
  EXPECT_EQ(makeTicks(1970, 1, 1, 0, 0, 0), unixEpochSeconds * ticksPerSecond);
}

TEST(CalendarMakeTicks, MatchesTheLibraryForRandomDatesOfManyCenturies) {
  std::mt19937_64 random(1601);
  std::uniform_int_distribution<std::int32_t> years(-20'000, 29'000);
  std::uniform_int_distribution<std::int32_t> months(1, 12), hours(0, 23), sixty(0, 59);
  for (int i = 0; i < 20'000; ++i) {
    std::int32_t year = i % 2 ? years(random) : 1601 + static_cast<std::int32_t>(random() % 8399);
    std::int32_t month = months(random);
    std::int32_t day = 1 + static_cast<std::int32_t>(random() % daysInMonth(year, month));
    std::int32_t hour = hours(random), minute = sixty(random), second = sixty(random);
    Ticks ticks = 0;
    ASSERT_TRUE(tryMakeTicks(ticks, year, month, day, hour, minute, second));
    EXPECT_EQ(ticks,
              librarySeconds(year - 1900, month - 1, day, hour, minute, second) * ticksPerSecond)
        << year << "-" << month << "-" << day;
  }
}

TEST(CalendarMakeTicks, LeapSecondRunsIntoTheNextMinute) {
  struct Case {
    std::int32_t year, month, day, hour, minute;
  } cases[] = {
      {2016, 12, 31, 23, 59}, {2015, 6, 30, 23, 59}, {1601, 1, 1, 0, 0}, {1600, 2, 29, 23, 59}};
  for (const Case& c : cases) {
    Ticks leap = 0;
    ASSERT_TRUE(tryMakeTicks(leap, c.year, c.month, c.day, c.hour, c.minute, 60));
    EXPECT_EQ(leap, makeTicks(c.year, c.month, c.day, c.hour, c.minute, 59) + ticksPerSecond);
    Split next = split(leap);
    EXPECT_EQ(next.second, 0);
    EXPECT_EQ(next.minute, (c.minute + 1) % 60);
  }
}

TEST(CalendarMakeTicks, RejectsWhatIsOutsideTheRange) {
  Ticks ticks = 0;
  EXPECT_FALSE(tryMakeTicks(ticks, 1'000'001, 1, 1, 0, 0, 0));
  EXPECT_FALSE(tryMakeTicks(ticks, -1'000'001, 1, 1, 0, 0, 0));
  EXPECT_FALSE(tryMakeTicks(ticks, 1'000'000, 1, 1, 0, 0, 0)); // a valid year, but too far
  EXPECT_FALSE(tryMakeTicks(ticks, 2023, 2, 29, 0, 0, 0));

  // The last whole second of the range is made, and the one after it is not.
  Split last = split(maxTicks);
  ASSERT_TRUE(
      tryMakeTicks(ticks, last.year, last.month, last.day, last.hour, last.minute, last.second));
  EXPECT_EQ(ticks, maxTicks - maxTicks % ticksPerSecond);
  EXPECT_FALSE(tryMakeTicks(ticks, last.year, last.month, last.day, last.hour, last.minute,
                            last.second + 1));

  // At the bottom the second that holds the smallest ticks starts below the
  // range, while the second after it fits, although its day starts below too.
  Split first = split(minTicks);
  EXPECT_FALSE(tryMakeTicks(ticks, first.year, first.month, first.day, first.hour, first.minute,
                            first.second));
  ASSERT_TRUE(tryMakeTicks(ticks, first.year, first.month, first.day, first.hour, first.minute,
                           first.second + 1));
  EXPECT_EQ(ticks, (floorDiv(minTicks, ticksPerSecond) + 1) * ticksPerSecond);
}

TEST(CalendarMakeTicks, RaisesWithTheFieldsInTheMessage) {
  try {
    makeTicks(2021, 2, 30, 1, 2, 3);
    FAIL() << "no exception";
  } catch (const Exception& e) {
    EXPECT_STREQ(e.what(), "invalid date (2021-02-30T01:02:03)");
  }
}

TEST(CalendarSplitTicks, MatchesTheLibraryOverTheWholeRange) {
  std::mt19937_64 random(42);
  // Whole range, the years 1601 to 9999, and a band around 1601.
  std::uniform_int_distribution<Ticks> whole(minTicks, maxTicks);
  std::uniform_int_distribution<Ticks> usual(0, makeTicks(9999, 12, 31, 23, 59, 59));
  std::uniform_int_distribution<Ticks> near1601(-400 * 366 * ticksPerDay, 400 * 366 * ticksPerDay);
  for (int i = 0; i < 20'000; ++i) {
    expectSameAsLibrary(whole(random));
    expectSameAsLibrary(usual(random));
    expectSameAsLibrary(near1601(random));
  }
  for (Ticks edge : {minTicks, maxTicks, Ticks{0}, Ticks{-1}, Ticks{1}})
    expectSameAsLibrary(edge);
}

TEST(CalendarSplitTicks, FloorsNegativeTicks) {
  Split s = split(-1);
  EXPECT_EQ(s.year, 1600);
  EXPECT_EQ(s.month, 12);
  EXPECT_EQ(s.day, 31);
  EXPECT_EQ(s.hour, 23);
  EXPECT_EQ(s.minute, 59);
  EXPECT_EQ(s.second, 59);
  EXPECT_EQ(s.wday, 0);
  EXPECT_EQ(s.yday, 365); // 1600 was a leap year

  Split day = split(-ticksPerDay);
  EXPECT_EQ(day.day, 31);
  EXPECT_EQ(day.hour, 0);
  EXPECT_EQ(day.wday, 0);
}

TEST(CalendarSplitTicks, RoundTripsToTheWholeSecond) {
  std::mt19937_64 random(7);
  // The lowest second of the range starts below it, so it cannot round-trip.
  std::uniform_int_distribution<Ticks> whole(minTicks + ticksPerSecond, maxTicks);
  for (int i = 0; i < 20'000; ++i) {
    Ticks ticks = whole(random);
    DateFields fields;
    ticksToUtc(fields, ticks);
    EXPECT_EQ(fieldsToTicks(fields), ticks - floorMod(ticks, ticksPerSecond)) << ticks;
  }
}

TEST(CalendarTicksToUtc, FillsTheZoneFields) {
  DateFields fields;
  fields.tm_isdst = 1;
  fields.tm_gmtoff = 3600;
  Ticks ticks = makeTicks(2024, 2, 29, 13, 14, 15) + 999 * ticksPerMillisecond;
  ticksToUtc(fields, ticks);
  EXPECT_EQ(fields.tm_year, 124);
  EXPECT_EQ(fields.tm_mon, 1);
  EXPECT_EQ(fields.tm_mday, 29);
  EXPECT_EQ(fields.tm_hour, 13);
  EXPECT_EQ(fields.tm_min, 14);
  EXPECT_EQ(fields.tm_sec, 15);
  EXPECT_EQ(fields.tm_wday, 4);
  EXPECT_EQ(fields.tm_yday, 59);
  EXPECT_EQ(fields.tm_isdst, 0);
  EXPECT_EQ(fields.tm_gmtoff, 0);
  EXPECT_STREQ(fields.tm_zone, "UTC");
}

TEST(CalendarUnixToTicks, ShiftsAndSaturates) {
  constexpr std::int64_t maxSeconds = maxTicks / ticksPerSecond;
  struct Case {
    std::int64_t seconds;
    Ticks ticks;
  } cases[] = {
      {0, unixEpochSeconds * ticksPerSecond},
      {-unixEpochSeconds, 0},
      {1'700'000'000, (1'700'000'000 + unixEpochSeconds) * ticksPerSecond},
      {maxSeconds - unixEpochSeconds, maxSeconds * ticksPerSecond},
      {maxSeconds - unixEpochSeconds + 1, maxTicks},
      {-maxSeconds - unixEpochSeconds, -maxSeconds * ticksPerSecond},
      {-maxSeconds - unixEpochSeconds - 1, minTicks},
      {std::numeric_limits<std::int64_t>::max(), maxTicks},
      {std::numeric_limits<std::int64_t>::max() - unixEpochSeconds, maxTicks},
      {std::numeric_limits<std::int64_t>::min(), minTicks},
  };
  for (const Case& c : cases)
    EXPECT_EQ(unixToTicks(c.seconds), c.ticks) << c.seconds;
}

TEST(CalendarUnixToTicks, AddsNanosecondsInWholeTicks) {
  EXPECT_EQ(unixToTicks(0, 0), unixEpochSeconds * ticksPerSecond);
  EXPECT_EQ(unixToTicks(0, 999'999'999), unixEpochSeconds * ticksPerSecond + 9'999'999);
  EXPECT_EQ(unixToTicks(-unixEpochSeconds - 1, 500'000'000), -ticksPerSecond / 2);
  EXPECT_EQ(unixToTicks(std::numeric_limits<std::int64_t>::max(), 999'999'999), maxTicks);
  EXPECT_EQ(unixToTicks(std::numeric_limits<std::int64_t>::min(), 999'999'999),
            minTicks + 9'999'999);
}

DateFields fieldsOf(std::int32_t tmYear, std::int32_t tmMon, std::int32_t mday, std::int32_t hour,
                    std::int32_t minute, std::int32_t second) {
  DateFields fields;
  fields.tm_year = tmYear;
  fields.tm_mon = tmMon;
  fields.tm_mday = mday;
  fields.tm_hour = hour;
  fields.tm_min = minute;
  fields.tm_sec = second;
  return fields;
}

TEST(CalendarFieldsToTicks, CapsTheYearBeforeMakingTicks) {
  try {
    fieldsToTicks(fieldsOf(std::numeric_limits<std::int32_t>::max(), 0, 1, 0, 0, 0));
    FAIL() << "no exception";
  } catch (const Exception& e) {
    EXPECT_STREQ(e.what(), "invalid date (2147483647-01-01T00:00:00)");
  }
  EXPECT_THROW(fieldsToTicks(fieldsOf(100, 12, 1, 0, 0, 0)), Exception);
  EXPECT_EQ(fieldsToTicks(fieldsOf(-299, 0, 1, 0, 0, 0)), 0);
}

TEST(CalendarFieldsToSeconds, HandlesEveryThirtyTwoBitYear) {
  std::mt19937_64 random(400);
  std::uniform_int_distribution<std::int32_t> years(std::numeric_limits<std::int32_t>::min(),
                                                    std::numeric_limits<std::int32_t>::max());
  std::uniform_int_distribution<std::int32_t> months(0, 11), days(1, 28), hours(0, 23),
      sixty(0, 59);
  for (int i = 0; i < 20'000; ++i) {
    DateFields fields = fieldsOf(years(random), months(random), days(random), hours(random),
                                 sixty(random), sixty(random));
    EXPECT_EQ(fieldsToSeconds(fields), librarySeconds(fields.tm_year, fields.tm_mon, fields.tm_mday,
                                                      fields.tm_hour, fields.tm_min, fields.tm_sec))
        << fields.tm_year;
  }
  for (std::int32_t tmYear : {std::numeric_limits<std::int32_t>::max(),
                              std::numeric_limits<std::int32_t>::min(), -1900, -301, 399, 400}) {
    DateFields fields = fieldsOf(tmYear, 11, 31, 23, 59, 59);
    EXPECT_EQ(fieldsToSeconds(fields), librarySeconds(tmYear, 11, 31, 23, 59, 59)) << tmYear;
  }
  EXPECT_THROW(fieldsToSeconds(fieldsOf(5000, 1, 30, 0, 0, 0)), Exception);
}

} // namespace
} // namespace plat
