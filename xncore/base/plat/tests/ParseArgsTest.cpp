// The command line: each argument form, where parsing stops, help requests
// and the failure that a bad argument raises.
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/StringParameter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

// Arguments as the program receives them, null-terminated.
class Argv {
public:
  Argv(std::initializer_list<const char*> arguments) : pointers_(arguments) {
    pointers_.push_back(nullptr);
  }
  const char* const* get() const { return pointers_.data(); }

private:
  std::vector<const char*> pointers_;
};

struct HelpCall {
  int mode;
  plat::Configuration* configuration;
};

class CommandLine : public testing::Test {
protected:
  plat::Configuration::HelpFunction capturingHelp() {
    return [this](int mode, plat::Configuration& configuration) {
      helpCalls.push_back({mode, &configuration});
    };
  }

  std::string message(const Argv& argv, const plat::Configuration::HelpFunction& help) {
    try {
      group.parseArgs(argv.get(), help);
    } catch (const plat::Exception& failure) {
      EXPECT_STREQ(failure.type(), "BadCmdLineArg");
      return failure.what();
    }
    return "<accepted>";
  }

  plat::Configuration group{"Test", nullptr};
  plat::BoolParameter flag{"Flag", "A flag", false, false, &group};
  plat::IntParameter count{"Count", "How many", 0, false, &group, 0, 100};
  plat::StringParameter text{"Text", "Some text", "none", false, &group};
  plat::BoolParameter hidden{"_Hidden", "Internal", false, true, &group};
  std::vector<HelpCall> helpCalls;
};

TEST_F(CommandLine, AcceptedForms) {
  struct Case {
    Argv argv;
    bool flag;
    int count;
    const char* text;
  } cases[] = {
      {{"-Flag"}, true, 0, "none"},
      {{"-Flag", "-Flag=off"}, false, 0, "none"},
      {{"-Flag", "Flag=0"}, false, 0, "none"},
      {{"-Flag", "--Flag=no"}, false, 0, "none"},
      {{"-flag"}, true, 0, "none"},
      {{"-FLAG="}, true, 0, "none"},
      {{"--flag"}, true, 0, "none"},
      {{"-Count", "5"}, false, 5, "none"},
      {{"--Count=7"}, false, 7, "none"},
      {{"count=0x10"}, false, 16, "none"},
      {{"-Text="}, false, 0, ""},
      {{"-Text", "a b"}, false, 0, "a b"},
      {{"-Text=x=y"}, false, 0, "x=y"},
      {{"-Text", "-Flag"}, false, 0, "-Flag"},
      {{"-Count", "3", "-Flag", "Text=t"}, true, 3, "t"},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.argv.get()[0]);
    flag.reset(false);
    count.reset(false);
    text.reset(false);
    group.parseArgs(c.argv.get(), capturingHelp());
    EXPECT_EQ(static_cast<bool>(flag), c.flag);
    EXPECT_EQ(static_cast<int>(count), c.count);
    EXPECT_EQ(std::string(text.getValueString().get()), c.text);
  }
  EXPECT_TRUE(helpCalls.empty());
}

TEST_F(CommandLine, ValuesArriveAsPreferences) {
  group.parseArgs(Argv{"-Count=4", "-Flag"}.get(), nullptr);
  EXPECT_EQ(count.getPriority(), 10);
  EXPECT_EQ(flag.getPriority(), 10);
  EXPECT_EQ(text.getPriority(), 0);
}

TEST_F(CommandLine, InternalParametersCanBeSet) {
  group.parseArgs(Argv{"-_hidden"}.get(), nullptr);
  EXPECT_TRUE(hidden);
}

TEST_F(CommandLine, RejectedArgumentsStopParsing) {
  struct Case {
    Argv argv;
    const char* message;
  } cases[] = {
      {{"--Count", "5"}, "Bad argument '--Count'.  Run with -help for usage."},
      {{"Flag"}, "Bad argument 'Flag'.  Run with -help for usage."},
      {{"-Count=abc"}, "Bad argument '-Count=abc'.  Run with -help for usage."},
      {{"-Count=101"}, "Bad argument '-Count=101'.  Run with -help for usage."},
      {{"/Flag"}, "Bad argument '/Flag'.  Run with -help for usage."},
      {{"-Count"}, "Bad argument '-Count'.  Run with -help for usage."},
      {{"-Nope", "1"}, "Bad argument '-Nope'.  Run with -help for usage."},
      {{"-"}, "Bad argument '-'.  Run with -help for usage."},
      {{"input.txt"}, "Bad argument 'input.txt'.  Run with -help for usage."},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.argv.get()[0]);
    EXPECT_EQ(message(c.argv, capturingHelp()), c.message);
  }
  EXPECT_EQ(count.getPriority(), 0);
  EXPECT_EQ(flag.getPriority(), 0);
}

TEST_F(CommandLine, ArgumentsBeforeTheBadOneStayApplied) {
  EXPECT_EQ(message(Argv{"-Flag", "-Nope", "-Count=3"}, capturingHelp()),
            "Bad argument '-Nope'.  Run with -help for usage.");
  EXPECT_TRUE(flag);
  EXPECT_EQ(count.getPriority(), 0);
}

TEST_F(CommandLine, WithoutHelpFunctionTheHintIsLeftOut) {
  EXPECT_EQ(message(Argv{"-Nope"}, nullptr), "Bad argument '-Nope'.");
  EXPECT_EQ(message(Argv{"-help"}, nullptr), "Bad argument '-help'.");
}

TEST_F(CommandLine, HelpRequestsAndTheirModes) {
  struct Case {
    Argv argv;
    int mode;
  } cases[] = {
      {{"-help"}, plat::Configuration::helpPlain},
      {{"--help"}, plat::Configuration::helpPlain},
      {{"-h"}, plat::Configuration::helpPlain},
      {{"/?"}, plat::Configuration::helpPlain},
      {{"-HELP", "ALL"}, plat::Configuration::helpAll},
      {{"-Help", "xml"}, plat::Configuration::helpXml},
      {{"-help", "other"}, plat::Configuration::helpPlain},
      {{"-Flag", "-help", "all", "extra"}, plat::Configuration::helpAll},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.argv.get()[0]);
    helpCalls.clear();
    // A help function that returns leaves the request standing as a bad argument.
    std::string failure = message(c.argv, capturingHelp());
    ASSERT_EQ(helpCalls.size(), 1u);
    EXPECT_EQ(helpCalls[0].mode, c.mode);
    EXPECT_EQ(helpCalls[0].configuration, &group);
    EXPECT_EQ(failure.rfind("Bad argument '", 0), 0u);
  }
  EXPECT_TRUE(flag); // set before the request
}

TEST_F(CommandLine, HelpFunctionRunsBeforeTrailingArgumentsAndExits) {
  auto exitingHelp = [](int mode, plat::Configuration&) { std::exit(10 + mode); };
  EXPECT_EXIT(group.parseArgs(Argv{"-help", "all", "trailing"}.get(), exitingHelp),
              testing::ExitedWithCode(11), "");
}

TEST_F(CommandLine, NoThrowLeavesTheCursorOnTheFirstArgumentNotTaken) {
  Argv ownOptions{"-Flag", "input.txt", "-Count=5"};
  const char* const* cursor = ownOptions.get();
  EXPECT_TRUE(group.parseArgsNoThrow(cursor, capturingHelp()));
  EXPECT_STREQ(*cursor, "input.txt");
  EXPECT_TRUE(flag);
  EXPECT_EQ(count.getPriority(), 0);

  Argv help{"-Count=2", "-h", "all"};
  cursor = help.get();
  EXPECT_FALSE(group.parseArgsNoThrow(cursor, capturingHelp()));
  EXPECT_STREQ(*cursor, "-h");
  ASSERT_EQ(helpCalls.size(), 1u);
  EXPECT_EQ(helpCalls[0].mode, plat::Configuration::helpAll);

  // Without a function a help request is just where parsing stopped.
  cursor = help.get();
  EXPECT_TRUE(group.parseArgsNoThrow(cursor, nullptr));
  EXPECT_STREQ(*cursor, "-h");

  Argv consumed{"-Count=9"};
  cursor = consumed.get();
  EXPECT_TRUE(group.parseArgsNoThrow(cursor, capturingHelp()));
  EXPECT_EQ(*cursor, nullptr);
  EXPECT_EQ(static_cast<int>(count), 9);
}

TEST_F(CommandLine, OneArgumentAtATime) {
  Argv argv{"-Count", "4", "-Flag", "stop"};
  const char* const* cursor = argv.get();
  EXPECT_TRUE(group.parseOneArg(cursor));
  EXPECT_EQ(cursor, argv.get() + 2);
  EXPECT_TRUE(group.parseOneArg(cursor));
  EXPECT_EQ(cursor, argv.get() + 3);
  EXPECT_FALSE(group.parseOneArg(cursor));
  EXPECT_EQ(cursor, argv.get() + 3);
  cursor = argv.get() + 4;
  EXPECT_FALSE(group.parseOneArg(cursor));
}

TEST_F(CommandLine, SingleArgumentForms) {
  EXPECT_TRUE(group.setParamFromArg("-Flag", 30));
  EXPECT_EQ(flag.getPriority(), 30);
  EXPECT_FALSE(group.setParamFromArg("Flag", 10));
  EXPECT_FALSE(group.setParamFromArg("-Text", 10)); // a string takes no missing value
  EXPECT_FALSE(group.setParamFromArg("---Flag", 10));
  EXPECT_FALSE(group.setParamFromArg(nullptr, 10));
  EXPECT_TRUE(group.setParamFromArg("Text=", 10));
  EXPECT_EQ(std::string(text.getValueString().get()), "");
}

TEST_F(CommandLine, ArgumentsReachSubgroups) {
  plat::Configuration child("Child", nullptr);
  plat::IntParameter depth("Depth", "How deep", 0, false, &child);
  group.addSubgroup(&child);
  group.parseArgs(Argv{"-depth", "3", "Depth=4"}.get(), nullptr);
  EXPECT_EQ(static_cast<int>(depth), 4);
}

} // namespace
