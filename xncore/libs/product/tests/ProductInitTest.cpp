// Product initialisation: who the program is, the data directory in the
// environment, the log defaults that a command line then overrides, the
// user's stored settings, and the banner that heads the log file.
#include "product/ProductInit.h"

#include "os/AppInfo.h"
#include "plat/Configuration.h"
#include "plat/FileSystem.h"
#include "plat/LogDest.h"
#include "plat/LogDestFile.h"
#include "plat/LogSrc.h"
#include "plat/tests/TempDir.h"
#include "product/ProductInfo.h"
#include "product/ProductVersion.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

namespace {

TEST(ProductInit, SaysWhoTheProgramIsAndPublishesTheDataDirectory) {
  plat::test::TempDir dir;
  ASSERT_EQ(setenv("XDG_STATE_HOME", dir.path().c_str(), 1), 0);
  product::productInit("/opt/bin/tool.exe", nullptr, nullptr, nullptr, false, false);

  EXPECT_STREQ(os::getApp(false), "/opt/bin/tool.exe");
  EXPECT_STREQ(os::getCompany(false), "Ostrand");
  EXPECT_STREQ(os::getPathComp(false), "oxn");
  std::string company = dir.path("Ostrand");
  EXPECT_STREQ(getenv("LOCAL_APPDATA_COMPANY"), company.c_str());
  EXPECT_STREQ(getenv("LOCALAPPDATA"), dir.path().c_str());
  EXPECT_TRUE(plat::isDirectory(company.c_str()));
  // Without versions of its own the product is "0.1" on both counts.
  EXPECT_STREQ(product::productVersion(), "0.1");
  EXPECT_STREQ(product::productBuildVersion(), "0.1");
}

TEST(ProductInit, SetsTheLogDefaultsBelowTheCommandLineAndHeadsTheFileWithTheFullInfo) {
  plat::test::TempDir dir;
  ASSERT_EQ(setenv("XDG_STATE_HOME", dir.path().c_str(), 1), 0);
  product::productInit("/opt/bin/tool.exe", nullptr, nullptr, nullptr, true, false);

  std::string company = dir.path("Ostrand");
  plat::Configuration& global = plat::Configuration::global();
  for (auto [name, value] :
       {std::pair{"Log", "*:stderr:10"}, std::pair{"LogDir", "$LOCAL_APPDATA_COMPANY"},
        std::pair{"LogFile", "tool.log"}}) {
    EXPECT_STREQ(global.getString(name).get(), value) << name;
    EXPECT_EQ(global.findParam(name)->getPriority(), plat::priorityDefault) << name;
  }
  for (const char* name : {"stderr", "file", "debug"})
    EXPECT_NE(plat::findLogDest(name), nullptr) << name;
  EXPECT_STREQ(plat::logFilePath().get(), (company + "/tool.log").c_str());
  EXPECT_EQ(plat::findLogSrc("ConfigParameter")->level(), 10);

  const char* arguments[] = {"-Log=*:file:100", nullptr};
  global.parseArgs(arguments, nullptr);
  EXPECT_EQ(plat::findLogSrc("ConfigParameter")->level(), 100);
  std::string content = plat::test::TempDir::read(company + "/tool.log");
  std::string banner = std::string(product::fullInfo().get()) + "\n";
  EXPECT_EQ(content.compare(0, banner.size(), banner), 0) << content;
  EXPECT_NE(content.find("ConfigParameter: set Log", banner.size()), std::string::npos);
}

TEST(ProductInit, ReadsTheStoredConfigurationOnlyWhenAsked) {
  plat::test::TempDir dir;
  ASSERT_EQ(setenv("XDG_STATE_HOME", dir.path("state").c_str(), 1), 0);
  ASSERT_EQ(setenv("XDG_CONFIG_HOME", dir.path("config").c_str(), 1), 0);
  dir.write("config/Ostrand/tool.conf", "Log=*:file:100\n");
  plat::Configuration& global = plat::Configuration::global();

  product::productInit("tool", nullptr, nullptr, nullptr, false, false);
  EXPECT_STREQ(global.getString("Log").get(), "*:stderr:10");
  product::productInit("tool", nullptr, nullptr, nullptr, false, true);
  // The user's preference stands above the default that initialisation gave.
  EXPECT_STREQ(global.getString("Log").get(), "*:file:100");
  EXPECT_EQ(global.findParam("Log")->getPriority(), plat::priorityPreference);
}

} // namespace
