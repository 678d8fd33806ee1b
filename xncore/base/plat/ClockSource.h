// What the platform directory supplies to the clocks: the counter behind the
// monotonic clock and a plain sleep. The portable side keeps the origin, the
// conversion to ticks and the rules of sleeping.
#pragma once

#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

/// Counts of the high-resolution counter in one second, as the platform says.
std::uint64_t counterFrequency() noexcept;

/// The monotonic clock in ticks from an arbitrary origin, without the time the
/// machine slept.
Ticks suspendFreeTicks() noexcept;

/// One sleep of the thread; it may end early.
void sleepThreadMs(std::int32_t ms) noexcept;

} // namespace plat
