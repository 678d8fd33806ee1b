#include "oxnpermissionscreator/EntryFrame.h"

#include "oxnpermissionscreator/CommandLine.h"
#include "oxnpermissionscreator/FeaturePermissions.h"

#include "plat/Exception.h"
#include "product/ProductVersion.h"

#include <cstdio>

namespace app {

namespace {

// The one failure report. It goes to standard error until the log exists.
void reportFailure(const plat::Exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  std::fflush(stderr);
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
    defineFeaturePermissions();
    return exitSuccess;
  });
}

} // namespace app
