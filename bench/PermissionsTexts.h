// Long "Permissions" texts for the benchmarks: SID entries in random order,
// a quarter of them groups, as an administrator who pastes the list of a
// whole organisation would have them.
#pragma once

#include <benchmark/benchmark.h>

#include <random>
#include <string>

/// Entries until the text is `bytes` long or a little more.
inline std::string permissionsText(std::size_t bytes) {
  std::mt19937 random(11);
  std::string text;
  for (int i = 0; text.size() < bytes; ++i) {
    if (i > 0)
      text += ',';
    if (random() % 4 == 0)
      text += '%';
    text += "S-1-5-21-" + std::to_string(random()) + "-" + std::to_string(i) + ":f!q";
  }
  return text;
}

/// The size in bytes (the benchmark's argument) is its complexity; the time
/// per kilobyte is a counter, which stays flat while the growth is linear.
inline void reportPerKilobyte(benchmark::State& state) {
  state.SetComplexityN(state.range(0));
  state.counters["per_KB"] = benchmark::Counter(static_cast<double>(state.range(0)) / 1024.0,
                                                benchmark::Counter::kIsIterationInvariantRate |
                                                    benchmark::Counter::kInvert);
}

/// Texts of 10 KB, 100 KB and 1 MB, timed in milliseconds, the growth fitted
/// to a line.
inline void longTextSizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10 * 1024)
      ->Arg(100 * 1024)
      ->Arg(1024 * 1024)
      ->Unit(benchmark::kMillisecond)
      ->Complexity(benchmark::oN);
}
