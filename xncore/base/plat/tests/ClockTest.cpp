// The wall clock, the monotonic clock and sleeping. Times are only bounded
// from the side that correctness fixes (a sleep is never short); upper bounds
// are generous, and speed is measured by the benchmark, not here.

#include "plat/Clock.h"

#include "plat/Calendar.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>
#include <time.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>

namespace plat {
namespace {

constexpr Ticks generousSlack = 5 * ticksPerSecond;

Ticks rawMonotonicTicks() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * ticksPerSecond + now.tv_nsec / 100;
}

TEST(ClockWall, ReadsUtcTicksSince1601) {
  time_t before = time(nullptr);
  Ticks now = timeNow();
  time_t after = time(nullptr);
  EXPECT_GE(now, unixToTicks(before));
  EXPECT_LT(now, unixToTicks(after + 1));
}

TEST(ClockWall, HasSubSecondPrecision) {
  // Over many readings at least one is not on a whole second.
  bool fraction = false;
  for (int i = 0; i < 1000 && !fraction; ++i)
    fraction = timeNow() % ticksPerSecond != 0;
  EXPECT_TRUE(fraction);
}

TEST(ClockMonotonic, FirstReadingOfAProcessIsZero) {
  // A fresh process, so that no other test has read the clock before.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(std::exit(monotonicTime() == 0 && monotonicTime() >= 0 ? 0 : 1),
              testing::ExitedWithCode(0), "");
}

TEST(ClockMonotonic, NeverGoesBack) {
  Ticks previous = monotonicTime();
  for (int i = 0; i < 100'000; ++i) {
    Ticks now = monotonicTime();
    ASSERT_GE(now, previous);
    previous = now;
  }
}

TEST(ClockMonotonic, CountsInTicks) {
  Ticks first = monotonicTime();
  Ticks rawFirst = rawMonotonicTicks();
  sleepMs(20);
  Ticks rawLast = rawMonotonicTicks();
  Ticks last = monotonicTime();
  // The clock's interval holds the raw clock's interval and is not much longer.
  EXPECT_GE(last - first, rawLast - rawFirst);
  EXPECT_LT(last - first, rawLast - rawFirst + generousSlack);
}

TEST(ClockMonotonic, ReportsPassingTheLimit) {
  Ticks start = monotonicTime();
  sleepMs(2);
  bool passed = true;
  monotonicTime(-1, &passed);
  EXPECT_FALSE(passed) << "a negative limit is no limit";
  monotonicTime(start, &passed);
  EXPECT_TRUE(passed);
  monotonicTime(start + 1000 * ticksPerSecond, &passed);
  EXPECT_FALSE(passed);
  EXPECT_GE(monotonicTime(-1, nullptr), start);
}

TEST(ClockSleep, IsNeverShorterThanAsked) {
  for (std::int32_t ms : {1, 3, 15, 40}) {
    Ticks start = monotonicTime();
    sleepMs(ms);
    Ticks slept = monotonicTime() - start;
    EXPECT_GE(slept, ms * ticksPerMillisecond) << ms;
    EXPECT_LT(slept, ms * ticksPerMillisecond + generousSlack) << ms;
  }
}

TEST(ClockSleep, ReturnsAtOnceForNothing) {
  for (std::int32_t ms : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
    Ticks start = monotonicTime();
    sleepMs(ms);
    EXPECT_LT(monotonicTime() - start, generousSlack) << ms;
  }
}

extern "C" void ignoreAlarm(int) {}

TEST(ClockSleep, SleepsOnAfterASignal) {
  struct sigaction action {};
  action.sa_handler = ignoreAlarm; // without SA_RESTART, so the sleep is interrupted
  struct sigaction previous {};
  ASSERT_EQ(sigaction(SIGALRM, &action, &previous), 0);
  itimerval timer{};
  timer.it_value.tv_usec = 5'000;
  ASSERT_EQ(setitimer(ITIMER_REAL, &timer, nullptr), 0);

  Ticks start = monotonicTime();
  sleepMs(60);
  Ticks slept = monotonicTime() - start;

  itimerval off{};
  setitimer(ITIMER_REAL, &off, nullptr);
  sigaction(SIGALRM, &previous, nullptr);
  EXPECT_GE(slept, 60 * ticksPerMillisecond);
}

TEST(ClockCounter, ConvertsNanosecondsExactly) {
  // The Linux counter is CLOCK_MONOTONIC in nanoseconds.
  std::mt19937_64 random(99);
  std::uniform_int_distribution<std::int64_t> counts(1, std::numeric_limits<std::int64_t>::max());
  for (int i = 0; i < 10'000; ++i) {
    std::int64_t count = counts(random);
    // count * 10^7 / 10^9 is count / 100 exactly, without the overflow of the product.
    EXPECT_EQ(counterToTicks(count), static_cast<std::uint64_t>(count / 100)) << count;
  }
  EXPECT_EQ(counterToTicks(std::numeric_limits<std::int64_t>::max()),
            static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max() / 100));
  EXPECT_EQ(counterToTicks(99), 0u);
  EXPECT_EQ(counterToTicks(100), 1u);
}

TEST(ClockCounter, GivesZeroBelowOne) {
  for (std::int64_t count :
       {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()})
    EXPECT_EQ(counterToTicks(count), 0u) << count;
}

} // namespace
} // namespace plat
