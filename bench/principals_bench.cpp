// The cost of reading and writing an access list as its size grows. The ids
// are SID strings and "*", which need no account look-up. Parsing and
// rendering together should grow like n log n: the time per entry may creep up
// with n, never in proportion to it.
//
// "shuffled" gives the entries in random order, so that placing each one is
// real work. "sorted" gives the same entries as the list renders them: the
// comparisons are as many, but the entries lie in memory in list order, which
// shows how much of the growth is the cache rather than the counting.

#include "sysauth/SecurityPrincipalList.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>

namespace {

std::string accessListText(int entries) {
  std::mt19937 random(7);
  std::string text;
  for (int i = 0; i < entries; ++i) {
    if (i > 0)
      text += ',';
    switch (random() % 8) {
    case 0:
      text += "*:v";
      continue;
    case 1:
    case 2:
      text += '%';
      break;
    default:
      break;
    }
    text += "S-1-5-21-" + std::to_string(random()) + "-" + std::to_string(i) + ":f!q";
  }
  return text;
}

void parseAndRender(benchmark::State& state, bool shuffled) {
  const int entries = static_cast<int>(state.range(0));
  std::string text = accessListText(entries);
  sysauth::SecurityPrincipalList list;
  if (!shuffled) {
    list.parse(text.c_str(), false);
    text = list.render().get();
  }
  for (auto _ : state) {
    list.parse(text.c_str(), false);
    plat::String rendered = list.render();
    benchmark::DoNotOptimize(rendered.get());
  }
  state.SetComplexityN(entries);
  state.counters["per_entry"] = benchmark::Counter(
      entries, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void sizes(benchmark::internal::Benchmark* family) {
  family->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
  family->Complexity(benchmark::oNLogN);
}

BENCHMARK_CAPTURE(parseAndRender, shuffled, true)->Apply(sizes);
BENCHMARK_CAPTURE(parseAndRender, sorted, false)->Apply(sizes);

} // namespace
