#include "product/ProductInit.h"

#include "loc/Localize.h"
#include "os/AppDataDir.h"
#include "os/Environment.h"
#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/FileTree.h"
#include "plat/LogDestDebug.h"
#include "plat/LogDestFile.h"
#include "plat/LogParameters.h"
#include "plat/Path.h"

#include <cstdio>

namespace product {

namespace {

// The user's local data directory of the company goes into the environment
// as "LOCAL_APPDATA_COMPANY", its parent as "LOCALAPPDATA"; empty when there
// is none.
void publishDataDirectory() {
  plat::String dir;
  try {
    dir = os::getAppDataDir(os::AppDataScope::UserLocal, companyName, false);
  } catch (const plat::Exception&) {
    dir = plat::String("");
  }
  os::setEnvironmentVariable("LOCAL_APPDATA_COMPANY", dir.get());
  os::setEnvironmentVariable("LOCALAPPDATA", *dir.get() ? plat::pathDirName(dir.get()).get() : "");
  if (*dir.get())
    plat::mkDirPath(dir.get());
}

} // namespace

void productInit(const char* argv0, const char* appName, const char* logSpec, bool enableFileLog) {
  // Texts follow "Locale" from here on, so that a locale given on the command
  // line already applies to the help it asks for.
  loc::Localize::instance().init({});
  plat::String derivedName;
  if (!appName) {
    derivedName = plat::pathBaseName(argv0, ".exe");
    appName = derivedName.get();
  }
  publishDataDirectory();
  std::setvbuf(stderr, nullptr, _IONBF, 0);
  initLogDefaults(logSpec, appName);
  if (enableFileLog)
    plat::enableLogFile(true);
}

void initLogDefaults(const char* logSpec, const char* appName) {
  plat::initLogDestDebug();
  plat::logDirParameter.setFromString("$LOCAL_APPDATA_COMPANY", plat::priorityDefault);
  plat::logFileParameter.setFromString(plat::strFormat("%s.log", appName).get(),
                                       plat::priorityDefault);
  plat::initLogDestStderr(appName);
  plat::initLogDestFile(appName, false);
  plat::logParameter.setFromString(logSpec ? logSpec : "*:stderr:10", plat::priorityDefault);
}

} // namespace product
