// The command line (each argument form, where parsing stops, help requests and
// the failure a bad argument raises) and what a group prints about itself.
#include "Capture.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

// Arguments as the program receives them, null-terminated.
struct Argv {
  Argv(std::initializer_list<const char*> arguments) : pointers(arguments) {
    pointers.push_back(nullptr);
  }
  const char* const* get() const { return pointers.data(); }
  std::vector<const char*> pointers;
};

class CommandLine : public testing::Test {
protected:
  CommandLine() { group.addSubgroup(&child); }

  plat::Configuration::HelpFunction recordingHelp() {
    return [this](int mode, plat::Configuration& configuration) {
      EXPECT_EQ(&configuration, &group);
      helpModes.push_back(mode);
    };
  }

  std::string failure(const Argv& argv, const plat::Configuration::HelpFunction& help) {
    try {
      group.parseArgs(argv.get(), help);
    } catch (const plat::Exception& failure) {
      EXPECT_STREQ(failure.type(), "BadCmdLineArg");
      return failure.what();
    }
    return "<accepted>";
  }

  plat::Configuration group{"Test", nullptr};
  plat::Configuration child{"Child", nullptr};
  plat::BoolParameter flag{"Flag", "A flag", false, false, &group};
  plat::IntParameter count{"Count", "How many", 0, false, &child, 0, 100}; // in a subgroup
  plat::StringParameter text{"Text", "Some text", "none", false, &group};
  plat::BoolParameter hidden{"_Hidden", "Internal", false, true, &group};
  std::vector<int> helpModes;
};

TEST_F(CommandLine, AcceptedFormsSetPreferences) {
  // Each command line with the values it leaves: Flag, Count (in a subgroup), Text.
  const std::pair<Argv, std::string> cases[] = {
      {{"-Flag"}, "1 0 none"},           {{"-Flag", "-Flag=off"}, "0 0 none"},
      {{"-Flag", "Flag=0"}, "0 0 none"}, {{"-Flag", "--Flag=no"}, "0 0 none"},
      {{"-flag"}, "1 0 none"},           {{"--FLAG="}, "1 0 none"},
      {{"-Count", "5"}, "0 5 none"},     {{"--Count=7"}, "0 7 none"},
      {{"count=0x10"}, "0 16 none"},     {{"-Text="}, "0 0 "},
      {{"-Text", "a b"}, "0 0 a b"},     {{"-Text=x=y"}, "0 0 x=y"},
      {{"-Text", "-Flag"}, "0 0 -Flag"}, {{"-Count", "3", "-Flag", "Text=t", "-_hidden"}, "1 3 t"},
  };
  for (const auto& [argv, values] : cases) {
    flag.reset(false);
    count.reset(false);
    text.reset(false);
    group.parseArgs(argv.get(), recordingHelp());
    EXPECT_EQ(std::to_string(flag) + " " + std::to_string(count) + " " +
                  text.getValueString().get(),
              values)
        << argv.get()[0];
  }
  EXPECT_TRUE(hidden);
  EXPECT_EQ(flag.getPriority(), 10);
  EXPECT_TRUE(helpModes.empty());
}

TEST_F(CommandLine, RejectedArgumentsStopParsing) {
  const char* cases[][2] = {
      {"--Count", "5"},   {"Flag", nullptr},   {"-Count=abc", nullptr}, {"-Count=101", nullptr},
      {"/Flag", nullptr}, {"-Count", nullptr}, {"-Text", nullptr},      {"---Flag", nullptr},
      {"-Nope", "1"},     {"-", nullptr},      {"input.txt", nullptr},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(failure(Argv{c[0], c[1]}, recordingHelp()),
              std::string("Bad argument '") + c[0] + "'.  Run with -help for usage.");
  }
  EXPECT_EQ(failure(Argv{"-Flag", "-Nope", "-Count=3"}, nullptr), "Bad argument '-Nope'.");
  EXPECT_TRUE(flag); // arguments before the bad one stay applied
  EXPECT_EQ(count.getPriority(), 0);
  EXPECT_EQ(failure(Argv{"-help"}, nullptr), "Bad argument '-help'.");
}

TEST_F(CommandLine, HelpRequestsAndTheirModes) {
  const int plainHelp = plat::Configuration::helpPlain, all = plat::Configuration::helpAll;
  const std::pair<Argv, int> cases[] = {
      {{"-help"}, plainHelp},
      {{"--help"}, plainHelp},
      {{"-h"}, plainHelp},
      {{"/?"}, plainHelp},
      {{"-HELP", "ALL"}, all},
      {{"-Help", "xml"}, plat::Configuration::helpXml},
      {{"-help", "other"}, plainHelp},
      {{"-Flag", "-help", "all", "extra"}, all},
  };
  for (const auto& [argv, mode] : cases) {
    helpModes.clear();
    // A help function that returns leaves the request standing as a bad argument.
    EXPECT_EQ(failure(argv, recordingHelp()).rfind("Bad argument '", 0), 0u);
    EXPECT_EQ(helpModes, std::vector<int>{mode}) << argv.get()[0];
  }
  EXPECT_TRUE(flag); // set before the request
  auto exitingHelp = [](int mode, plat::Configuration&) { std::exit(10 + mode); };
  EXPECT_EXIT(group.parseArgs(Argv{"-help", "all", "trailing"}.get(), exitingHelp),
              testing::ExitedWithCode(11), "");
}

TEST_F(CommandLine, NoThrowLeavesTheCursorOnTheFirstArgumentNotTaken) {
  Argv ownOptions{"-Flag", "input.txt", "-Count=5"};
  const char* const* cursor = ownOptions.get();
  EXPECT_TRUE(group.parseArgsNoThrow(cursor, recordingHelp()));
  EXPECT_STREQ(*cursor, "input.txt");
  EXPECT_TRUE(flag);
  EXPECT_EQ(count.getPriority(), 0);

  Argv help{"-Count", "2", "-h", "all"};
  cursor = help.get();
  EXPECT_FALSE(group.parseArgsNoThrow(cursor, recordingHelp()));
  EXPECT_EQ(cursor, help.get() + 2);
  EXPECT_EQ(helpModes, std::vector<int>{plat::Configuration::helpAll});
  cursor = help.get();
  EXPECT_TRUE(group.parseArgsNoThrow(cursor, nullptr)); // without a function, just a stop
  EXPECT_EQ(cursor, help.get() + 2);
  Argv consumed{"-Count", "9"};
  cursor = consumed.get();
  EXPECT_TRUE(group.parseArgsNoThrow(cursor, nullptr));
  EXPECT_EQ(cursor, consumed.get() + 2);
}

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

TEST(HelpText, SortedWithoutCaseAndHiddenAdvancedOrDefaultsOnRequest) {
  plat::Configuration group("Demo", nullptr);
  plat::BoolParameter beta("beta", "Second.", false, false, &group);
  plat::IntParameter alpha("Alpha", "First.", 3, false, &group);
  plat::BoolParameter expert("Expert", "Only for experts.", true, true, &group);
  plat::BoolParameter secret("_Secret", "Internal.", false, false, &group);
  plat::BinaryParameter blob("Blob", "Bytes.", {}, false, &group);
  plat::Configuration titled("Titled", "plat_configuration_global_params");
  plat::Configuration plain("Plain", nullptr);
  plat::IntParameter inner("Inner", "Deeper.", 1, false, &titled);
  group.addSubgroup(&titled);
  titled.addSubgroup(&plain);

  EXPECT_EQ(helpOf(group, false, true), std::string(usage) +
                                            "Demo Parameters:\n"
                                            "  Alpha          - First. (default=3)\n"
                                            "  beta           - Second. (default=0)\n"
                                            "Global parameters:\n"
                                            "  Inner          - Deeper. (default=1)\n"
                                            "Plain Parameters:\n");
  EXPECT_NE(helpOf(group, false, false).find("  Alpha          - First.\n  beta"),
            std::string::npos);
  std::string all = helpOf(group, true, true);
  EXPECT_EQ(all.rfind(std::string(usage) + "Demo Parameters:\n"
                                           "  Alpha          - First. (default=3)\n"
                                           "  beta           - Second. (default=0)\n"
                                           "  Blob           - Bytes.\n"
                                           "  Expert         - Only for experts. (default=1)\n",
                      0),
            0u)
      << all;
  EXPECT_NE(all.find("Plain Parameters:\n\nLog names:\n"), std::string::npos);
  EXPECT_NE(all.find("ConfigParameter"), std::string::npos);
  EXPECT_EQ(all.find("_Secret"), std::string::npos);
  EXPECT_NE(all.find("\n\nLog destinations:\n"), std::string::npos);
  EXPECT_EQ(all.substr(all.size() - 6), "  ipc\n");
}

TEST(HelpLayout, TheDefaultNoteGoesWhereItFits) {
  // "  Name           - " takes 19 columns and "(default=0)" 11, so a last line
  // of up to 48 bytes of description leaves room for the note in 79 columns.
  const std::string e = "\xC3\xA9"; // two bytes, one character
  const std::string sameLine = " (default=0)",
                    nextLine = "\n" + std::string(19, ' ') + "(default=0)";
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {std::string(48, 'a'), "0", sameLine},
      {std::string(49, 'a'), "0", nextLine},
      {"word " + std::string(43, 'b'), "0", sameLine},
      {"word " + std::string(44, 'b'), "0", nextLine},
      {std::string(46, 'c') + e + e, "0", nextLine}, // 48 characters, but 50 bytes
      {std::string(46, 'd'), e + e + e, " (default=" + e + e + e + ")"}, // the note in characters
  };
  for (const auto& [description, value, note] : cases) {
    plat::Configuration group("Layout", nullptr);
    plat::StringParameter parameter("Name", description.c_str(), value.c_str(), false, &group);
    std::string help = helpOf(group, false, true);
    EXPECT_EQ(help.substr(help.find("  Name")), "  Name           - " + description + note + "\n");
  }
}

TEST(HelpLayout, LongTextsWrapWithAHangingIndent) {
  plat::Configuration group("Wrap", nullptr);
  plat::StringParameter prose(
      "Prose",
      "A description that goes on for quite a while, so that it cannot possibly fit on a "
      "single line of help text and has to be wrapped at word boundaries, twice at least.",
      "some default value", false, &group);
  const std::string indent(19, ' '), longWord(90, 'w');
  std::string unbreakableText = "Holds " + longWord + " here"; // outlives the parameter
  plat::StringParameter unbreakable("Unbreakable", unbreakableText.c_str(), "", false, &group);
  plat::IntParameter longName("AParameterWithAVeryLongName", "Short text.", 1, false, &group);
  // Lines of at most 79 columns, broken between words; a longer word stands alone.
  std::vector<std::string> printed = lines(helpOf(group, false, true));
  EXPECT_EQ(std::vector<std::string>(printed.end() - 9, printed.end()),
            (std::vector<std::string>{
                "Wrap Parameters:",
                "  AParameterWithAVeryLongName - Short text. (default=1)",
                "  Prose          - A description that goes on for quite a while, so that it",
                indent + "cannot possibly fit on a single line of help text and has to",
                indent + "be wrapped at word boundaries, twice at least.",
                indent + "(default=some default value)",
                "  Unbreakable    - Holds",
                indent + longWord,
                indent + "here (default=)",
            }));
}

TEST(ValueDump, OrderLevelsAndLabels) {
  plat::Configuration group("Dump", nullptr);
  plat::Configuration child("Child", nullptr);
  group.addSubgroup(&child);
  group.addInt("Zeta", "z", 7);
  group.addString("alpha", "a", "")->setFromString("a", 10);
  group.addBool("Beta", "b", false)->setFromString("1", 10);
  group.setParam("Beta", "1", 30);
  group.addString("gamma", "g", "")->setFromString("g", 30);
  group.addInt("Delta", "d", 0)->setFromString("5", 5);
  group.addBool("_hidden", "h", false)->setFromString("1", 40);
  group.addBinary("Key", "k", {})->setFromString("00", 10);
  child.addInt("Omega", "o", 0);
  plattest::LogCapture capture;
  group.logValues();
  EXPECT_EQ(capture.lines("Configuration"),
            (std::vector<std::string>{"30 Beta=1 (Policy overriding preference)",
                                      "30 gamma=g (Policy)", "30 alpha=a (Preference)",
                                      "30 Key=<binary> (Preference)", "30 Delta=5 (Priority 5)",
                                      "100 Omega=0 (Default)", "100 Zeta=7 (Default)"}));
}

} // namespace
