#include "oxnpermissionscreator/EntryFrame.h"

#include "oxnpermissionscreator/CommandLine.h"
#include "oxnpermissionscreator/FeaturePermissions.h"

#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "product/ProductVersion.h"
#include "product/StandardHelp.h"

#include <cstdio>

namespace app {

namespace {

// The one failure report. It goes to standard error until the log exists.
void reportFailure(const plat::Exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  std::fflush(stderr);
}

// Arguments from argument 1 on are parameter settings, at priority 10; a help
// request ends the process from inside, and a bad argument raises.
void applyCommandLine() {
  const char* const* arguments = processArguments();
  if (*arguments)
    ++arguments;
  plat::Configuration::global().parseArgs(arguments, product::standardHelp);
}

} // namespace

int runGuarded(const std::function<int()>& body) {
  try {
    return body();
  } catch (const plat::Exception& failure) {
    reportFailure(failure);
    return exitFailure;
  }
}

int runProgram(int argc, char** argv) {
  return runGuarded([argc, argv] {
    setProcessArguments(fetchProcessArguments(argc, argv));
    product::setProductVersion(displayVersion, numericVersion);
    applyCommandLine();
    defineFeaturePermissions();
    return exitSuccess;
  });
}

} // namespace app
