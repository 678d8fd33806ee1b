// Where the program lies, and the search for files that belong to it.
#include "os/ModuleFile.h"

#include "os/Environment.h"
#include "plat/Exception.h"
#include "plat/Path.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace {

TEST(ModuleFile, TheProgramIsFoundByItsProcessAndByItsCode) {
  std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
  EXPECT_EQ(os::getModuleFileName(nullptr).get(), self);
  EXPECT_EQ(os::getModuleFileName(reinterpret_cast<const void*>(&os::findModuleFile)).get(), self);
  EXPECT_EQ(os::getProcessImageName(static_cast<int>(getpid())).get(), self);
  EXPECT_EQ(os::getExecutableDir().get(), std::filesystem::path(self).parent_path().string());
  EXPECT_THROW(os::getProcessImageName(-1), plat::SystemException);
}

TEST(ModuleFile, FindsBesideTheProgramThenOnTheSearchPath) {
  std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
  std::string selfName = std::filesystem::path(self).filename().string();
  os::setEnvironmentVariable("PATH", "/nowhere::/usr/bin");
  struct Case {
    const char* name;
    bool useSearchPath;
    std::string expected; // empty: nothing found
  };
  for (const Case& c : {
           Case{nullptr, false, self},
           Case{self.c_str(), false, self},
           Case{"/no/such/file", true, ""},
           Case{selfName.c_str(), false, self},
           Case{"env", true, "/usr/bin/env"},
           Case{"env", false, ""},
           Case{"bin/env", true, ""},
       }) {
    plat::String found = os::findModuleFile(c.name, false, c.useSearchPath);
    EXPECT_EQ(found.isNull() ? "" : found.get(), c.expected) << (c.name ? c.name : "<null>");
  }
  try {
    os::findModuleFile("bin/env", true, true);
    ADD_FAILURE() << "a required file that is missing must raise";
  } catch (const plat::SystemException& failure) {
    EXPECT_EQ(failure.code(), 2);
    EXPECT_EQ(std::string(failure.what()).rfind("bin/env: ", 0), 0u) << failure.what();
  }
}

} // namespace
