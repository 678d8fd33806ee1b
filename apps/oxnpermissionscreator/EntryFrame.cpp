#include "oxnpermissionscreator/EntryFrame.h"

#include "oxnpermissionscreator/CommandLine.h"
#include "oxnpermissionscreator/FeaturePermissions.h"

#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "plat/LogSrc.h"
#include "product/ProductInit.h"
#include "product/ProductVersion.h"
#include "product/StandardHelp.h"

namespace app {

namespace {

// The entry function's own source, for the one failure report.
plat::LogSrc entryLog(applicationName);

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
    entryLog.error("%s", failure.what());
    return exitFailure;
  }
}

int runProgram(int argc, char** argv) {
  return runGuarded([argc, argv] {
    setProcessArguments(fetchProcessArguments(argc, argv));
    product::setProductVersion(displayVersion, numericVersion);
    product::productInit(processArguments()[0], applicationName, nullptr, true);
    applyCommandLine();
    defineFeaturePermissions();
    return exitSuccess;
  });
}

} // namespace app
