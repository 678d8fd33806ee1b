// The help text of a group and the dump of its values into the log.
#include "Capture.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/IntParameter.h"
#include "plat/StringParameter.h"
#include "plat/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace {

const char* const usage =
    "Parameters can be turned on with -<param> or off with -<param>=0\n"
    "Values can be specified as -<param> <value>\n"
    "Other valid forms are <param>=<value> -<param>=<value> --<param>=<value>\n"
    "Names are case-insensitive.  Valid parameters are listed below.\n\n";

std::string helpOf(const plat::Configuration& group, bool all, bool showDefaults) {
  return plattest::captureStream([&](std::FILE* out) { group.printHelp(all, showDefaults, out); });
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> result;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);)
    result.push_back(line);
  return result;
}

class HelpText : public testing::Test {
protected:
  plat::Configuration group{"Demo", nullptr};
  plat::BoolParameter beta{"beta", "Second.", false, false, &group};
  plat::IntParameter alpha{"Alpha", "First.", 3, false, &group};
  plat::BoolParameter expert{"Expert", "Only for experts.", true, true, &group};
  plat::BoolParameter secret{"_Secret", "Internal.", false, false, &group};
  plat::BinaryParameter blob{"Blob", "Bytes.", {}, false, &group};
};

TEST_F(HelpText, PlainListIsSortedWithoutHiddenOrAdvanced) {
  EXPECT_EQ(helpOf(group, false, true), std::string(usage) +
                                            "Demo Parameters:\n"
                                            "  Alpha          - First. (default=3)\n"
                                            "  beta           - Second. (default=0)\n");
}

TEST_F(HelpText, AllAddsAdvancedParametersLogNamesAndDestinations) {
  std::string help = helpOf(group, true, true);
  std::string expectedList = "Demo Parameters:\n"
                             "  Alpha          - First. (default=3)\n"
                             "  beta           - Second. (default=0)\n"
                             "  Blob           - Bytes.\n"
                             "  Expert         - Only for experts. (default=1)\n"
                             "\nLog names:\n";
  ASSERT_EQ(help.rfind(std::string(usage) + expectedList, 0), 0u) << help;
  EXPECT_NE(help.find("ConfigParameter"), std::string::npos);
  EXPECT_EQ(help.find("_Secret"), std::string::npos);
  EXPECT_EQ(help.substr(help.size() - 20), "\n\nLog destinations:\n");
}

TEST_F(HelpText, DefaultsCanBeLeftOut) {
  EXPECT_EQ(helpOf(group, false, false), std::string(usage) + "Demo Parameters:\n"
                                                              "  Alpha          - First.\n"
                                                              "  beta           - Second.\n");
}

TEST_F(HelpText, SubgroupsFollowWithTheirOwnHeaders) {
  plat::Configuration titled("Titled", "plat_configuration_global_params");
  plat::Configuration plain("Plain", nullptr);
  plat::IntParameter inner("Inner", "Deeper.", 1, false, &titled);
  group.addSubgroup(&titled);
  titled.addSubgroup(&plain);
  std::string help = helpOf(group, false, false);
  EXPECT_NE(help.find("  beta           - Second.\n"
                      "Global parameters:\n"
                      "  Inner          - Deeper.\n"
                      "Plain Parameters:\n"),
            std::string::npos)
      << help;
  EXPECT_EQ(help.substr(help.size() - 18), "Plain Parameters:\n");
}

TEST(HelpLayout, TheDefaultNoteGoesWhereItFits) {
  // "  Name           - " takes 19 columns and "(default=0)" 11, so a
  // description of up to 48 bytes on its last line leaves room for the note.
  struct Case {
    std::string description;
    bool sameLine;
  } cases[] = {
      {std::string(48, 'a'), true},
      {std::string(49, 'a'), false},
      {"word " + std::string(43, 'b'), true},
      {"word " + std::string(44, 'b'), false},
      // Bytes count on the last line: 48 characters but 50 bytes.
      {std::string(46, 'c') + "\xC3\xA9\xC3\xA9", false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.description);
    plat::Configuration group("Layout", nullptr);
    plat::BoolParameter flag("Name", c.description.c_str(), false, false, &group);
    std::vector<std::string> printed = lines(helpOf(group, false, true));
    std::string entry = "  Name           - " + c.description;
    if (c.sameLine) {
      EXPECT_EQ(printed.back(), entry + " (default=0)");
    } else {
      ASSERT_GE(printed.size(), 2u);
      EXPECT_EQ(printed[printed.size() - 2], entry);
      EXPECT_EQ(printed.back(), std::string(19, ' ') + "(default=0)");
    }
  }
}

TEST(HelpLayout, NoteWidthCountsCharacters) {
  // 46 + 19 = 65 columns, and "(default=ééé)" is 13 characters but 16 bytes.
  plat::Configuration group("Layout", nullptr);
  std::string description(46, 'd');
  plat::StringParameter text("Name", description.c_str(), "\xC3\xA9\xC3\xA9\xC3\xA9", false,
                             &group);
  std::vector<std::string> printed = lines(helpOf(group, false, true));
  EXPECT_EQ(printed.back(),
            "  Name           - " + description + " (default=\xC3\xA9\xC3\xA9\xC3\xA9)");
}

TEST(HelpLayout, LongTextsWrapWithAHangingIndent) {
  plat::Configuration group("Wrap", nullptr);
  plat::StringParameter prose(
      "Prose",
      "A description that goes on for quite a while, so that it cannot possibly fit on a "
      "single line of help text and has to be wrapped at word boundaries, twice at least.",
      "some default value", false, &group);
  std::string longWord(90, 'w');
  std::string unbreakableText = "Holds " + longWord + " here"; // kept: texts are not copied
  plat::StringParameter unbreakable("Unbreakable", unbreakableText.c_str(), "", false, &group);
  plat::IntParameter longName("AParameterWithAVeryLongName", "Short text.", 1, false, &group);

  std::vector<std::string> printed = lines(helpOf(group, false, true));
  int entries = 0;
  for (const std::string& line : printed) {
    if (line.rfind("  ", 0) != 0)
      continue; // usage and header
    bool continuation = line.rfind(std::string(19, ' '), 0) == 0;
    if (continuation) {
      EXPECT_NE(line[19], ' ') << line;
    } else {
      ++entries;
      std::size_t nameLength = line.find(' ', 2) - 2;
      EXPECT_EQ(line.find(" - "), 2 + std::max<std::size_t>(14, nameLength)) << line;
    }
    bool oneWord = line.find_first_not_of(' ') != std::string::npos &&
                   line.find(' ', line.find_first_not_of(' ')) == std::string::npos;
    EXPECT_TRUE(line.size() <= 79 || oneWord) << line;
  }
  EXPECT_EQ(entries, 3);
  EXPECT_NE(std::find(printed.begin(), printed.end(), std::string(19, ' ') + longWord),
            printed.end());
  EXPECT_NE(std::find(printed.begin(), printed.end(),
                      "  AParameterWithAVeryLongName - Short text. (default=1)"),
            printed.end());
}

TEST(ValueDump, OrderLevelsAndLabels) {
  plat::Configuration group("Dump", nullptr);
  plat::Configuration child("Child", nullptr);
  group.addSubgroup(&child);
  plat::IntParameter zeta("Zeta", "z", 7, false, &group);
  plat::StringParameter alpha("alpha", "a", "", false, &group);
  plat::BoolParameter beta("Beta", "b", false, false, &group);
  plat::StringParameter gamma("gamma", "g", "", false, &group);
  plat::IntParameter delta("Delta", "d", 0, false, &group);
  plat::BoolParameter hidden("_hidden", "h", false, false, &group);
  plat::BinaryParameter key("Key", "k", {}, false, &group);
  plat::IntParameter omega("Omega", "o", 0, false, &child);
  alpha.setFromString("a", 10);
  beta.setFromString("1", 10);
  beta.setFromString("1", 30);
  gamma.setFromString("g", 30);
  delta.setFromString("5", 5);
  hidden.setFromString("1", 40);
  key.setFromString("00", 10);

  plattest::LogCapture capture;
  group.logValues();
  std::vector<plattest::LogRecord> records = capture.from("Configuration");
  struct Expected {
    int level;
    const char* text;
  } expected[] = {
      {30, "Beta=1 (Policy overriding preference)"},
      {30, "gamma=g (Policy)"},
      {30, "alpha=a (Preference)"},
      {30, "Key=<binary> (Preference)"},
      {30, "Delta=5 (Priority 5)"},
      {100, "Omega=0 (Default)"},
      {100, "Zeta=7 (Default)"},
  };
  ASSERT_EQ(records.size(), std::size(expected));
  for (std::size_t i = 0; i < records.size(); ++i) {
    EXPECT_EQ(records[i].level, expected[i].level) << i;
    EXPECT_EQ(records[i].text, expected[i].text) << i;
  }
}

} // namespace
