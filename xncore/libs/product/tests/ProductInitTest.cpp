// Product initialisation: the data directory in the environment and the log
// defaults, which a command line then overrides.
#include "product/ProductInit.h"

#include "plat/Configuration.h"
#include "plat/FileSystem.h"
#include "plat/LogDest.h"
#include "plat/LogDestFile.h"
#include "plat/LogSrc.h"
#include "plat/tests/TempDir.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

namespace {

TEST(ProductInit, PublishesTheDataDirectoryAndSetsTheLogDefaultsBelowTheCommandLine) {
  plat::test::TempDir dir;
  ASSERT_EQ(setenv("XDG_STATE_HOME", dir.path().c_str(), 1), 0);
  product::productInit("/opt/bin/tool.exe", nullptr, nullptr, true);

  std::string company = dir.path("Ostrand");
  EXPECT_STREQ(getenv("LOCAL_APPDATA_COMPANY"), company.c_str());
  EXPECT_STREQ(getenv("LOCALAPPDATA"), dir.path().c_str());
  EXPECT_TRUE(plat::isDirectory(company.c_str()));
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
  EXPECT_NE(plat::test::TempDir::read(company + "/tool.log").find("ConfigParameter: set Log"),
            std::string::npos);
}

} // namespace
