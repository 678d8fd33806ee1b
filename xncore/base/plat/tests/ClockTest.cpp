// The wall clock, the monotonic clock and sleeping. Nothing bounds how long
// anything takes; readings are compared with the system's clocks around them.

#include "plat/Clock.h"

#include "plat/Calendar.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>
#include <time.h>

#include <cstdint>
#include <cstdlib>
#include <limits>

namespace plat {
namespace {

Ticks systemMonotonicTicks() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * ticksPerSecond + now.tv_nsec / 100;
}

TEST(ClockWall, ReadsUtcTicksSince1601WithAFraction) {
  time_t before = time(nullptr);
  Ticks now = timeNow();
  time_t after = time(nullptr);
  EXPECT_GE(now, unixToTicks(before));
  EXPECT_LT(now, unixToTicks(after + 1));
  bool fraction = false;
  for (int i = 0; i < 1000 && !fraction; ++i)
    fraction = timeNow() % ticksPerSecond != 0;
  EXPECT_TRUE(fraction) << "only whole seconds";
}

TEST(ClockMonotonic, StartsAtZeroAndCountsTicksOfTheSystemClock) {
  // A fresh process, so that no other test has read the clock before.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(std::exit(monotonicTime() == 0 ? 0 : 1), testing::ExitedWithCode(0), "");

  Ticks outerStart = systemMonotonicTicks(), start = monotonicTime();
  Ticks innerStart = systemMonotonicTicks(), previous = start;
  for (int i = 0; i < 100'000; ++i) {
    Ticks now = monotonicTime();
    ASSERT_GE(now, previous);
    previous = now;
  }
  sleepMs(20);
  Ticks innerEnd = systemMonotonicTicks(), end = monotonicTime();
  Ticks outerEnd = systemMonotonicTicks();
  EXPECT_GE(end - start, innerEnd - innerStart);
  EXPECT_LE(end - start, outerEnd - outerStart);

  bool passed = true;
  monotonicTime(-1, &passed);
  EXPECT_FALSE(passed) << "a negative limit is no limit";
  monotonicTime(start, &passed);
  EXPECT_TRUE(passed);
  monotonicTime(end + 1000 * ticksPerSecond, &passed);
  EXPECT_FALSE(passed);
}

extern "C" void ignoreAlarm(int) {}

TEST(ClockSleep, IsNeverShorterThanAsked) {
  for (std::int32_t ms : {1, 3, 15}) {
    Ticks start = monotonicTime();
    sleepMs(ms);
    EXPECT_GE(monotonicTime() - start, ms * ticksPerMillisecond) << ms;
  }
  // Nothing to sleep: these must return rather than wait for a wrapped-round time.
  for (std::int32_t ms : {0, -1, std::numeric_limits<std::int32_t>::min()})
    sleepMs(ms);

  // A signal interrupts the system's sleep (no SA_RESTART); the rest is slept.
  struct sigaction action {};
  struct sigaction previous {};
  action.sa_handler = ignoreAlarm;
  ASSERT_EQ(sigaction(SIGALRM, &action, &previous), 0);
  itimerval timer{}, off{};
  timer.it_value.tv_usec = 5'000;
  ASSERT_EQ(setitimer(ITIMER_REAL, &timer, nullptr), 0);
  Ticks start = monotonicTime();
  sleepMs(60);
  Ticks slept = monotonicTime() - start;
  setitimer(ITIMER_REAL, &off, nullptr);
  sigaction(SIGALRM, &previous, nullptr);
  EXPECT_GE(slept, 60 * ticksPerMillisecond);
}

TEST(ClockCounter, ConvertsNanosecondsExactly) {
  // The counter is CLOCK_MONOTONIC in nanoseconds: count * 10^7 / 10^9 is
  // count / 100 exactly, without the overflow of the product.
  constexpr std::int64_t max64 = std::numeric_limits<std::int64_t>::max();
  for (std::int64_t count : {max64, max64 / 3, std::int64_t{1} << 40, std::int64_t{100}})
    EXPECT_EQ(counterToTicks(count), static_cast<std::uint64_t>(count / 100)) << count;
  for (std::int64_t count : {std::int64_t{99}, std::int64_t{0}, std::int64_t{-1}, -max64 - 1})
    EXPECT_EQ(counterToTicks(count), 0u) << count;
}

} // namespace
} // namespace plat
