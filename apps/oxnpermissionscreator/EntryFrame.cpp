#include "oxnpermissionscreator/EntryFrame.h"

#include "oxnpermissionscreator/CommandLine.h"
#include "oxnpermissionscreator/FeaturePermissions.h"
#include "oxnpermissionscreator/NativeUi.h"
#include "oxnpermissionscreator/PermissionsDialog.h"
#include "oxnpermissionscreator/TextKeys.h"

#include "os/AppLoop.h"
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

void startUp(int argc, char** argv) {
  setProcessArguments(fetchProcessArguments(argc, argv));
  product::setProductVersion(displayVersion, numericVersion);
  product::productInit(processArguments()[0], applicationName,
                       textkey::oxnpermissionscreator_app_name_r, nullptr, true, true);
  applyCommandLine();
  defineFeaturePermissions();
}

int runDialog() {
  std::unique_ptr<NativeUi> native = makeNativeUi();
  os::AppLoop loop;
  native->installToolkit();
  {
    PermissionsDialog dialog;
    dialog.open();
    // It ends when the window is closed, and with nothing else that matters.
    loop.run();
  }
  return exitSuccess;
}

int runProgram(int argc, char** argv) {
  return runGuarded([argc, argv] {
    startUp(argc, argv);
    return runDialog();
  });
}

} // namespace app
