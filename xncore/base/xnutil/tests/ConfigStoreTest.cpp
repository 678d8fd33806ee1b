// The settings store on files: which scopes each store reads, at which
// priority, the guard on policy files, and writing back.
#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/StringParameter.h"
#include "plat/tests/Capture.h"
#include "plat/tests/TempDir.h"
#include "xnutil/ConfigStoreReg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace {

class ConfigStore : public testing::Test {
protected:
  xnutil::ConfigStoreRoots roots() const {
    return xnutil::ConfigStoreRoots{plat::String(dir.path("user").c_str()),
                                    plat::String(dir.path("machine").c_str()),
                                    plat::String(dir.path("policies").c_str()),
                                    static_cast<unsigned>(geteuid()), plat::String("alice")};
  }
  std::string policy(const std::string& relative, const std::string& text) {
    std::string file = dir.write("policies/" + relative, text);
    chmod(file.c_str(), 0644);
    return file;
  }
  std::string values() {
    std::string text;
    for (plat::ConfigParameter* parameter :
         {static_cast<plat::ConfigParameter*>(&level), static_cast<plat::ConfigParameter*>(&name)})
      text += std::string(parameter->name()) + "=" + parameter->getValueString().get() + "@" +
              std::to_string(parameter->getPriority()) + " ";
    return text;
  }

  plat::test::TempDir dir;
  plat::Configuration group{"Store", nullptr};
  plat::IntParameter level{"Level", "A number.", 1, false, &group};
  plat::StringParameter name{"Name", "A text.", "", false, &group};
};

TEST_F(ConfigStore, EachStoreReadsItsPreferencesAndThePolicyAbove) {
  dir.write("user/tool.conf", "Level=5\nUnknown=1\nName=DOMAIN\\user\n");
  dir.write("machine/tool.conf", "Level=7\n");
  policy("users/alice/tool.conf", "Name=from user policy\nLevel=8\n");
  policy("users/bob/tool.conf", "Level=99\n");
  policy("tool.conf", "Level=9\n");

  xnutil::ConfigStoreReg user(false, roots(), "tool");
  user.loadValues(plat::priorityPreference, &group);
  EXPECT_EQ(values(), "Level=5@10 Name=DOMAIN\\user@10 ");
  user.loadPolicy(&group);
  // Both policies at 30, the machine's read last.
  EXPECT_EQ(values(), "Level=9@30 Name=from user policy@30 ");
  group.findParam("Level")->unset(plat::priorityPolicy, true);
  EXPECT_EQ(values(), "Level=5@10 Name=from user policy@30 ") << "policy withdrawn";

  plat::Configuration machineGroup{"Machine", nullptr};
  plat::IntParameter machineLevel{"Level", "A number.", 1, false, &machineGroup};
  plat::StringParameter machineName{"Name", "A text.", "", false, &machineGroup};
  xnutil::ConfigStoreReg machine(true, roots(), "tool");
  machine.load(true, &machineGroup);
  EXPECT_EQ(machineLevel.getInt(), 9);
  EXPECT_STREQ(machineName.getValueString().get(), "") << "no user's policy for the machine";
}

TEST_F(ConfigStore, PolicyFilesOthersMayChangeAreIgnored) {
  plattest::LogCapture capture;
  std::string file = policy("tool.conf", "Level=9\n");
  chmod(file.c_str(), 0664);
  xnutil::ConfigStoreRoots strangerOwns = roots();
  xnutil::ConfigStoreReg user(false, roots(), "tool");
  user.loadPolicy(&group);
  chmod(file.c_str(), 0644);
  strangerOwns.policyOwner = static_cast<unsigned>(geteuid()) + 1;
  xnutil::ConfigStoreReg stranger(false, std::move(strangerOwns), "tool");
  stranger.loadPolicy(&group);
  EXPECT_EQ(level.getInt(), 1);
  EXPECT_THAT(capture.lines("ConfigStore"),
              testing::ElementsAre(testing::HasSubstr("0 Ignoring policy file " + file),
                                   testing::HasSubstr("0 Ignoring policy file " + file)));
}

TEST_F(ConfigStore, AFreshMachineHasNothingToReadAndNoError) {
  xnutil::ConfigStoreReg user(false, roots(), "tool");
  EXPECT_FALSE(user.exists());
  user.load(true, &group);
  EXPECT_EQ(values(), "Level=1@0 Name=@0 ");
  EXPECT_DEATH(user.loadValues(plat::priorityPolicy, &group),
               "!plat::isPriorityPolicy\\(priority\\)");
}

TEST_F(ConfigStore, WritesReplaceTheFileAndKeepWhatTheyDoNotChange) {
  std::string file = dir.write("user/tool.conf", "# mine\nOther=kept\nLevel=2\n");
  xnutil::ConfigStoreReg user(false, roots(), "tool");
  EXPECT_TRUE(user.exists());

  level.setFromString("4", plat::priorityPreference);
  name.setFromString("DOMAIN\\alice:f", plat::priorityPreference);
  user.saveParam(level);
  plat::Configuration base{"Base", nullptr};
  plat::IntParameter baseLevel{"Level", "A number.", 4, false, &base};
  plat::StringParameter baseName{"Name", "A text.", "", false, &base};
  user.saveChanges(group, base);
  EXPECT_EQ(plat::test::TempDir::read(file), "# mine\nOther=kept\nLevel=4\nName=DOMAIN\\alice:f\n");

  user.removeParam(level);
  user.removeParam(level);
  EXPECT_EQ(plat::test::TempDir::read(file), "# mine\nOther=kept\nName=DOMAIN\\alice:f\n");
  name.setFromString("two\nlines", plat::priorityPreference);
  EXPECT_THROW(user.saveParam(name), plat::Exception);
  EXPECT_EQ(plat::test::TempDir::read(file), "# mine\nOther=kept\nName=DOMAIN\\alice:f\n");
}

} // namespace
