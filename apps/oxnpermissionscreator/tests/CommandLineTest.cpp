#include "oxnpermissionscreator/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> split(const char* line) {
  std::vector<std::string> result;
  for (const plat::String& argument : app::splitCommandLine(line))
    result.emplace_back(argument.get());
  return result;
}

using Arguments = std::vector<std::string>;

struct SplitCase {
  const char* line;
  Arguments expected;
};

class SplitCommandLine : public testing::TestWithParam<SplitCase> {};

TEST_P(SplitCommandLine, FollowsTheQuotingRules) {
  EXPECT_EQ(split(GetParam().line), GetParam().expected) << "line: " << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SplitCommandLine,
    testing::Values(SplitCase{"prog a \"b c\" d\\\"e", {"prog", "a", "b c", "d\"e"}},
                    SplitCase{"", {}}, SplitCase{" \t ", {}},
                    SplitCase{"prog  \t a\t\tb  ", {"prog", "a", "b"}},
                    // An empty pair of quotes is an empty argument, also between others.
                    SplitCase{"prog \"\" x", {"prog", "", "x"}}, SplitCase{"\"\"", {""}},
                    // Backslashes before anything but a quote stand for themselves.
                    SplitCase{"C:\\dir\\file a\\\\b", {"C:\\dir\\file", "a\\\\b"}},
                    // Even run before a quote: half the backslashes, and the quote toggles.
                    SplitCase{"a\\\\\"b c\"", {"a\\b c"}},
                    // Odd run before a quote: half the backslashes and a literal quote.
                    SplitCase{"a\\\\\\\"b c", {"a\\\"b", "c"}},
                    // Quoting may start and stop inside one argument.
                    SplitCase{"-Name=\"two words\"tail next", {"-Name=two wordstail", "next"}},
                    // An unterminated quote runs to the end of the line.
                    SplitCase{"a \"b c", {"a", "b c"}},
                    // Text other than blanks, including UTF-8, passes through unchanged.
                    SplitCase{"\xc3\xa9t\xc3\xa9 \"\xe4\xb8\xad \xe6\x96\x87\"",
                              {"\xc3\xa9t\xc3\xa9", "\xe4\xb8\xad \xe6\x96\x87"}}));

TEST(SplitCommandLine, NullLineGivesNoArguments) {
  EXPECT_TRUE(app::splitCommandLine(nullptr).empty());
}

TEST(ProcessArguments, AreUtf8AndEndWithANullEntry) {
  char program[] = "/usr/bin/prog";
  char valid[] = "-Permissions=\xc3\xa9:f";
  char invalid[] = "bad\xff";
  char* argv[] = {program, valid, invalid, nullptr};
  app::setProcessArguments(app::fetchProcessArguments(3, argv));

  ASSERT_EQ(app::processArgumentCount(), 3);
  const char* const* arguments = app::processArguments();
  EXPECT_STREQ(arguments[0], "/usr/bin/prog");
  EXPECT_STREQ(arguments[1], valid);
  EXPECT_STREQ(arguments[2], "bad\xef\xbf\xbd") << "invalid bytes become U+FFFD";
  EXPECT_EQ(arguments[3], nullptr);
}

} // namespace
