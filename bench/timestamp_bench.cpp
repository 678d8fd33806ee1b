// The cost of a log line's timestamp: reading the wall clock and writing it as
// text, beside the C library's gmtime_r/localtime_r with strftime or snprintf
// for the same instant.

#include "plat/Calendar.h"
#include "plat/Clock.h"
#include "plat/DString.h"
#include "plat/IsoTime.h"

#include <benchmark/benchmark.h>
#include <time.h>

#include <cstdio>

namespace {

// One instant for every formatter, with milliseconds that are not zero.
const plat::Ticks instant =
    plat::makeTicks(2024, 5, 17, 13, 45, 9) + 123 * plat::ticksPerMillisecond;

time_t unixSeconds(plat::Ticks ticks) {
  return static_cast<time_t>(plat::floorDiv(ticks, plat::ticksPerSecond) - plat::unixEpochSeconds);
}

int millis(plat::Ticks ticks) {
  return static_cast<int>(plat::floorMod(ticks, plat::ticksPerSecond) / plat::ticksPerMillisecond);
}

void timeNow(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(plat::timeNow());
}
BENCHMARK(timeNow);

void clockGettimeRealtime(benchmark::State& state) {
  for (auto _ : state) {
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    benchmark::DoNotOptimize(now);
  }
}
BENCHMARK(clockGettimeRealtime);

void monotonicTime(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(plat::monotonicTime());
}
BENCHMARK(monotonicTime);

// The full log line's form: "2024-05-17T13:45:09.123Z".
void formatIsoUtc(benchmark::State& state) {
  plat::DString text;
  for (auto _ : state) {
    plat::formatIsoUtc(text, instant, true);
    benchmark::DoNotOptimize(text.get());
  }
}
BENCHMARK(formatIsoUtc);

void strftimeIsoUtc(benchmark::State& state) {
  char text[64];
  for (auto _ : state) {
    time_t seconds = unixSeconds(instant);
    tm fields;
    gmtime_r(&seconds, &fields);
    std::size_t length = strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &fields);
    std::snprintf(text + length, sizeof text - length, ".%03dZ", millis(instant));
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(strftimeIsoUtc);

// What a full log line pays in all: the clock and the text.
void timeNowAndFormatIsoUtc(benchmark::State& state) {
  plat::DString text;
  for (auto _ : state) {
    plat::formatIsoUtc(text, plat::timeNow(), true);
    benchmark::DoNotOptimize(text.get());
  }
}
BENCHMARK(timeNowAndFormatIsoUtc);

// The compact log line's form: "15:45:09.123" in local time.
void formatLocalClockTime(benchmark::State& state) {
  plat::DString text;
  for (auto _ : state) {
    plat::formatLocalClockTime(text, instant);
    benchmark::DoNotOptimize(text.get());
  }
}
BENCHMARK(formatLocalClockTime);

void localtimeSnprintfClockTime(benchmark::State& state) {
  char text[32];
  for (auto _ : state) {
    time_t seconds = unixSeconds(instant);
    tm fields;
    localtime_r(&seconds, &fields);
    std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", fields.tm_hour, fields.tm_min,
                  fields.tm_sec, millis(instant));
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(localtimeSnprintfClockTime);

} // namespace
