// The road of a long "Permissions" text given on the command line: the
// argument taken as UTF-8, applied to the parameter, parsed into an access
// list, rendered and written back, as an administrator who pastes the list of
// a whole organisation would have it. Every step should be linear or
// n log n: the time per kilobyte may creep up with the size, never in
// proportion to it.

#include "oxnpermissionscreator/CommandLine.h"

#include "plat/Configuration.h"
#include "plat/StringParameter.h"
#include "smisc/PermissionsParameter.h"
#include "sysauth/SecurityPrincipalList.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>

namespace {

// SID entries, in random order, until the text is `bytes` long or a little more.
std::string permissionsText(std::size_t bytes) {
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

void commandLineToRenderedParameter(benchmark::State& state) {
  std::string argument =
      "-Permissions=" + permissionsText(static_cast<std::size_t>(state.range(0)));
  std::string program = "oxnpermissionscreator";
  char* argv[] = {program.data(), argument.data(), nullptr};
  sysauth::SecurityPrincipalList list;
  for (auto _ : state) {
    app::setProcessArguments(app::fetchProcessArguments(2, argv));
    plat::Configuration::global().parseArgs(app::processArguments() + 1, nullptr);
    list.parse(smisc::permissionsParameter.getValueString().get(), false);
    smisc::permissionsParameter.setFromString(list.render().get(), plat::priorityPreference);
    plat::String rendered = smisc::permissionsParameter.getValueString();
    benchmark::DoNotOptimize(rendered.get());
  }
  state.SetComplexityN(state.range(0));
  state.counters["per_KB"] = benchmark::Counter(static_cast<double>(state.range(0)) / 1024.0,
                                                benchmark::Counter::kIsIterationInvariantRate |
                                                    benchmark::Counter::kInvert);
}

BENCHMARK(commandLineToRenderedParameter)
    ->Arg(10 * 1024)
    ->Arg(100 * 1024)
    ->Arg(1024 * 1024)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
