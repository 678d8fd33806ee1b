#include "product/ProductInit.h"

#include "loc/Localize.h"
#include "os/AppDataDir.h"
#include "os/AppInfo.h"
#include "os/Environment.h"
#include "os/ModuleFile.h"
#include "os/ProcessMitigation.h"
#include "plat/Configuration.h"
#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/FileTree.h"
#include "plat/LogDestDebug.h"
#include "plat/LogDestFile.h"
#include "plat/LogParameters.h"
#include "plat/Path.h"
#include "product/ProductInfo.h"
#include "product/ProductVersion.h"
#include "xnutil/ConfigStoreReg.h"

#include <cstdio>
#include <cstdlib>

namespace product {

bool isServiceProcess = false;

namespace {

// The program's data directory goes into the environment as
// "LOCAL_APPDATA_COMPANY", its parent as "LOCALAPPDATA"; empty when there is
// none.
void publishDataDirectory() {
  plat::String dir;
  try {
    dir = os::getAppDataDir(isServiceProcess ? os::AppDataScope::Service
                                             : os::AppDataScope::UserLocal,
                            nullptr, false, false);
  } catch (const plat::Exception&) {
    dir = plat::String("");
  }
  os::setEnvironmentVariable("LOCAL_APPDATA_COMPANY", dir.get());
  os::setEnvironmentVariable("LOCALAPPDATA", *dir.get() ? plat::pathDirName(dir.get()).get() : "");
}

} // namespace

void productInit(const char* argv0, const char* appName, const char* displayNameKey,
                 const char* logSpec, bool enableFileLog, bool loadConfiguration) {
  os::setAppInfo(appName ? appName : argv0, companyName, pathComponent, displayNameKey, nullptr);
  // Texts follow "Locale" from here on, so that a locale given on the command
  // line already applies to the help it asks for.
  loc::Localize::instance().init({});
  plat::String derivedName;
  if (!appName) {
    derivedName = plat::pathBaseName(argv0, ".exe");
    appName = derivedName.get();
  }
  os::applyProcessMitigations();
  publishDataDirectory();
  std::setvbuf(stderr, nullptr, _IONBF, 0);
  if (const char* dir = std::getenv("LOCAL_APPDATA_COMPANY"); dir && *dir)
    plat::mkDirPath(dir);
  // String files that add to the compiled-in texts lie beside the program.
  loc::Localize::instance().setStringDirs({os::getExecutableDir()});
  giveProductVersionDefaults();
  startProductTexts();
  initLogDefaults(logSpec, "$LOCAL_APPDATA_COMPANY", plat::strFormat("%s.log", appName).get(),
                  appName);
  // Declared by the modules of the family that report to the maker; a
  // program without them leaves it unset.
  plat::Configuration::global().setParam("_ProductUri", makerWebAddress, plat::priorityDefault);
  if (loadConfiguration)
    loadStoredConfiguration(nullptr);
  if (enableFileLog)
    plat::enableLogFile(true);
}

void initLogDefaults(const char* logSpec, const char* logDir, const char* logFile,
                     const char* appName) {
  plat::initLogDestDebug();
  plat::logDirParameter.setFromString(logDir, plat::priorityDefault);
  plat::logFileParameter.setFromString(logFile, plat::priorityDefault);
  plat::initLogDestStderr(appName);
  plat::initLogDestFile(appName, false);
  plat::logParameter.setFromString(logSpec ? logSpec : "*:stderr:10", plat::priorityDefault);
}

void loadStoredConfiguration(plat::Configuration* target) {
  static xnutil::ConfigStoreReg* const store = new xnutil::ConfigStoreReg(isServiceProcess);
  store->loadValues(plat::priorityPreference, target);
  store->loadPolicy(target);
}

} // namespace product
