#include "plat/Clock.h"

#include "plat/ClockSource.h"

#include <algorithm>
#include <limits>

namespace plat {

Ticks monotonicTime(Ticks limit, bool* passed) noexcept {
  Ticks now = suspendFreeTicks();
  // The first reading of the process is the origin; the static's guarded
  // initialisation is the one-time guard.
  static const Ticks origin = now;
  // A thread that read the clock just before another one set the origin
  // would see a negative time.
  Ticks result = std::max<Ticks>(now - origin, 0);
  if (passed)
    *passed = limit >= 0 && result > limit;
  return result;
}

void sleepMs(std::int32_t ms) noexcept {
  Ticks start = monotonicTime();
  if (ms < 1)
    return;
  std::int32_t left = ms;
  do {
    sleepThreadMs(left);
    // Rounded up to whole milliseconds, so that the sleep is never short.
    Ticks pending = ms * ticksPerMillisecond + start - monotonicTime() + (ticksPerMillisecond - 1);
    left = pending >= std::int64_t{std::numeric_limits<std::int32_t>::max()} * ticksPerMillisecond
               ? std::numeric_limits<std::int32_t>::max()
               : static_cast<std::int32_t>(pending / ticksPerMillisecond);
  } while (left > 0);
}

std::uint64_t counterToTicks(std::int64_t count) noexcept {
  constexpr std::uint64_t maxFrequency = 0xFFFFFFFF;
  static const std::uint64_t frequency =
      std::clamp<std::uint64_t>(counterFrequency(), 1, maxFrequency);
  if (count < 1)
    return 0;
  // count * ticksPerSecond / frequency in 96 bits: the product as a high part
  // and a low 32-bit word, each divided in turn. Every intermediate fits in 64
  // bits because the frequency does in 32.
  std::uint64_t value = static_cast<std::uint64_t>(count);
  std::uint64_t low = (value & 0xFFFFFFFF) * ticksPerSecond;
  std::uint64_t high = (value >> 32) * ticksPerSecond + (low >> 32);
  low &= 0xFFFFFFFF;
  std::uint64_t highQuotient = high / frequency;
  if (highQuotient > 0xFFFFFFFF)
    return std::numeric_limits<std::uint64_t>::max();
  std::uint64_t lowQuotient = ((high % frequency) << 32 | low) / frequency;
  return highQuotient << 32 | lowQuotient;
}

} // namespace plat
