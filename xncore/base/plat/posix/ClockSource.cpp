#include "plat/ClockSource.h"

#include "plat/Calendar.h"
#include "plat/Clock.h"

#include <time.h>

namespace plat {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

// clock_gettime cannot fail for these clocks with a valid pointer.
timespec readClock(clockid_t clock) noexcept {
  timespec now{};
  clock_gettime(clock, &now);
  return now;
}

} // namespace

Ticks timeNow() noexcept {
  timespec now = readClock(CLOCK_REALTIME);
  return unixToTicks(now.tv_sec, now.tv_nsec);
}

// The counter is CLOCK_MONOTONIC in nanoseconds.
std::uint64_t counterFrequency() noexcept {
  return nanosecondsPerSecond;
}

// On Linux CLOCK_MONOTONIC already stands still while the machine is
// suspended (CLOCK_BOOTTIME is the one that goes on), so no sleep time needs
// to be taken off.
Ticks suspendFreeTicks() noexcept {
  timespec now = readClock(CLOCK_MONOTONIC);
  return static_cast<Ticks>(counterToTicks(now.tv_sec * nanosecondsPerSecond + now.tv_nsec));
}

void sleepThreadMs(std::int32_t ms) noexcept {
  timespec duration{ms / 1000, static_cast<long>(ms % 1000) * 1'000'000};
  // A signal ends the sleep early with EINTR; the caller measures what is
  // left and sleeps again.
  clock_nanosleep(CLOCK_MONOTONIC, 0, &duration, nullptr);
}

} // namespace plat
