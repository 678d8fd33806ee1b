// Ticks: the unit of every instant and duration in the system, a signed 64-bit
// count of 100 ns. Wall-clock ticks count from 1601-01-01 00:00:00 UTC on the
// proleptic Gregorian calendar; instants before it are negative.
#pragma once

#include <cstdint>

namespace plat {

using Ticks = std::int64_t;

inline constexpr Ticks ticksPerMillisecond = 10'000;
inline constexpr Ticks ticksPerSecond = 10'000'000;
inline constexpr Ticks ticksPerMinute = 60 * ticksPerSecond;
inline constexpr Ticks ticksPerHour = 60 * ticksPerMinute;
inline constexpr Ticks ticksPerDay = 24 * ticksPerHour;

inline constexpr std::int64_t secondsPerDay = 86'400;
/// The Gregorian calendar repeats every 400 years.
inline constexpr std::int64_t daysPer400Years = 146'097;
inline constexpr std::int64_t secondsPer400Years = daysPer400Years * secondsPerDay;

/// Seconds from 1601-01-01 to the Unix epoch, 1970-01-01.
inline constexpr std::int64_t unixEpochSeconds = 11'644'473'600;

/// Division that rounds towards minus infinity, for splitting negative ticks.
constexpr std::int64_t floorDiv(std::int64_t value, std::int64_t divisor) noexcept {
  std::int64_t quotient = value / divisor;
  return (value % divisor != 0 && (value < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

/// The remainder that goes with floorDiv: it has the sign of the divisor. It is
/// found without multiplying the quotient back, which could overflow.
constexpr std::int64_t floorMod(std::int64_t value, std::int64_t divisor) noexcept {
  std::int64_t remainder = value % divisor;
  return (remainder != 0 && (remainder < 0) != (divisor < 0)) ? remainder + divisor : remainder;
}

} // namespace plat
