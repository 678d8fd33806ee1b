// The text form of a settings file, read and changed line by line.
#include "xnutil/ConfigText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ConfigText, EntriesAreNameValueLinesWithCommentsAndBlanksPassedOver) {
  std::string entries;
  for (const xnutil::ConfigEntry& entry :
       xnutil::parseConfigText("# a comment\n"
                               "\n"
                               "Log=*:file:100\r\n"
                               "  Permissions = DOMAIN\\alice:f,%adm:v\n"
                               "   # indented comment=1\n"
                               "no equals sign\n"
                               "=no name\n"
                               "Empty=\n"
                               "Last=a=b"))
    entries += std::string("[") + entry.first.get() + "|" + entry.second.get() + "]";
  EXPECT_EQ(entries, "[Log|*:file:100][Permissions|DOMAIN\\alice:f,%adm:v][Empty|][Last|a=b]");
  EXPECT_TRUE(xnutil::parseConfigText(nullptr).empty());
}

TEST(ConfigText, SettingAValueReplacesAddsOrRemovesItsLinesAndKeepsTheRest) {
  const char* text = "# kept\nlog=1\nOther=x\nLOG=2\n";
  struct Case {
    const char* name;
    const char* value;
    const char* expected;
  };
  for (const Case& c : {
           Case{"Log", "3", "# kept\nLog=3\nOther=x\n"},
           Case{"Log", nullptr, "# kept\nOther=x\n"},
           Case{"New", "v", "# kept\nlog=1\nOther=x\nLOG=2\nNew=v\n"},
           Case{"New", nullptr, "# kept\nlog=1\nOther=x\nLOG=2\n"},
       })
    EXPECT_STREQ(xnutil::setConfigTextValue(text, c.name, c.value).get(), c.expected) << c.name;
  EXPECT_STREQ(xnutil::setConfigTextValue("", "A", "1").get(), "A=1\n");
  EXPECT_STREQ(xnutil::setConfigTextValue("A=1", "B", "2").get(), "A=1\nB=2\n");
}

} // namespace
