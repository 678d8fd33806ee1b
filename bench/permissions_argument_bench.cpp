// The road of a long "Permissions" text given on the command line: the
// argument taken as UTF-8, applied to the parameter, parsed into an access
// list, rendered and written back, as an administrator who pastes the list of
// a whole organisation would have it. Every step should be linear or
// n log n: the time per kilobyte may creep up with the size, never in
// proportion to it.

#include "PermissionsTexts.h"
#include "oxnpermissionscreator/CommandLine.h"

#include "plat/Configuration.h"
#include "plat/StringParameter.h"
#include "smisc/PermissionsParameter.h"
#include "sysauth/SecurityPrincipalList.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

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
  reportPerKilobyte(state);
}

BENCHMARK(commandLineToRenderedParameter)->Apply(longTextSizes);

} // namespace
