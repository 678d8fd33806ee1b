// The two clocks of the system. The wall clock gives UTC ticks since 1601 for
// log lines and file times; the monotonic clock gives ticks since its first
// reading in the process and stands still while the machine is suspended, so
// that timers neither fire in a burst after a resume nor see the wall clock
// being set.
#pragma once

#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

/// The wall clock at the best precision the platform has.
Ticks timeNow() noexcept;

/// Ticks since the first call in the process, which gives 0; time the machine
/// slept is left out. When `passed` is given it is set to whether `limit` is
/// not negative and the reading is above it (callers pass -1 for no limit).
Ticks monotonicTime(Ticks limit = -1, bool* passed = nullptr) noexcept;

/// Suspends the thread for at least `ms` milliseconds of the monotonic clock;
/// below 1 returns at once.
void sleepMs(std::int32_t ms) noexcept;

/// Converts a count of the platform's high-resolution counter into ticks,
/// without overflow; a count below 1 gives 0, a result beyond 64 bits all ones.
std::uint64_t counterToTicks(std::int64_t count) noexcept;

} // namespace plat
