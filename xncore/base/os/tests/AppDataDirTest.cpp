// The data folders of each scope, as the environment of the user directs them.
#include "os/AppDataDir.h"

#include "os/AppInfo.h"
#include "os/Environment.h"
#include "plat/Exception.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

namespace {

TEST(AppDataDir, ScopesFollowTheXdgVariablesOrTheHomeDirectory) {
  struct Case {
    const char* stateHome; // null: unset
    os::AppDataScope scope;
    const char* expected;
  };
  os::setEnvironmentVariable("HOME", "/home/someone");
  os::setEnvironmentVariable("XDG_DATA_HOME", "/data");
  for (const Case& c : {
           Case{"/state", os::AppDataScope::UserLocal, "/state/Ostrand"},
           Case{nullptr, os::AppDataScope::UserLocal, "/home/someone/.local/state/Ostrand"},
           Case{"relative/state", os::AppDataScope::UserLocal,
                "/home/someone/.local/state/Ostrand"},
           Case{"/state", os::AppDataScope::UserRoaming, "/data/Ostrand"},
           Case{"/state", os::AppDataScope::Service, "/var/lib/Ostrand-Service"},
       }) {
    if (c.stateHome)
      os::setEnvironmentVariable("XDG_STATE_HOME", c.stateHome);
    else
      unsetenv("XDG_STATE_HOME");
    EXPECT_STREQ(os::getAppDataDir(c.scope, "Ostrand", false, false).get(), c.expected)
        << (c.stateHome ? c.stateHome : "<unset>");
  }

  unsetenv("HOME");
  unsetenv("XDG_STATE_HOME");
  EXPECT_THROW(os::knownFolderPath(os::AppDataScope::UserLocal), plat::Exception);
}

TEST(AppDataDir, TakesTheApplicationsCompanyAndLeavesTheServiceScopeToAdministrators) {
  os::setAppInfo("tool", "Maker", "oxn", nullptr, nullptr);
  os::setEnvironmentVariable("XDG_STATE_HOME", "/state");
  EXPECT_STREQ(os::getAppDataDir(os::AppDataScope::UserLocal, nullptr, false, false).get(),
               "/state/Maker");
  EXPECT_STREQ(os::getAppDataDir(os::AppDataScope::Service, nullptr, false, false).get(),
               "/var/lib/Maker-Service");
  EXPECT_STREQ(os::getAppDataDir(os::AppDataScope::Service, nullptr, false, true).get(),
               os::processIsAdministrator() ? "/var/lib/Maker-Service" : "/state/Maker");
}

} // namespace
