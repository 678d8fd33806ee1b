// A clock for plat::TimerManager that moves only when a test moves it, so
// that every expiry, and every step timed by the manager's clock, is exact.
#pragma once

#include "plat/Ticks.h"

#include <cstdint>

namespace plattest {

/// The clock's reading; a test sets it and moves it on.
inline plat::Ticks fakeNow = 0;

/// A TimerManager::Clock that reads fakeNow.
inline plat::Ticks fakeClock(plat::Ticks limit, bool* passed) {
  if (passed)
    *passed = limit >= 0 && fakeNow > limit;
  return fakeNow;
}

/// Moves the clock on by `ms` milliseconds.
inline void advanceMs(std::int64_t ms) {
  fakeNow += ms * plat::ticksPerMillisecond;
}

} // namespace plattest
