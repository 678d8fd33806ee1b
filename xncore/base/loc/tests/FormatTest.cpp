#include "loc/Localize.h"
#include "plat/tests/Capture.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace {

using Value = std::variant<int, unsigned, const char*>;

std::string formatList(const char* text, const std::vector<Value>& values) {
  std::vector<loc::LocArg> arguments;
  for (const Value& value : values)
    arguments.push_back(std::visit([](auto v) { return loc::LocArg(v); }, value));
  for (std::size_t index = 0; index + 1 < arguments.size(); ++index)
    arguments[index].setNext(&arguments[index + 1]);
  plat::DString result("left over");
  loc::format(result, text, arguments.empty() ? nullptr : arguments.data());
  return result.get();
}

TEST(LocFormat, FillsConversionsAndReportsBadOnes) {
  struct Case {
    const char* text;
    std::vector<Value> values;
    const char* expected;
    bool bad;
  };
  const Case cases[] = {
      {"Bad argument '%S'.", {"-x"}, "Bad argument '-x'.", false},
      {"%S and %S", {"one"}, "one and one", false},
      {"%1$S [resolved as %2$S]", {"alice", "Alice A."}, "alice [resolved as Alice A.]", false},
      {"%2$S, %1$S", {"first", "second"}, "second, first", false},
      {"%D %+D %++D", {5}, "5 +5 +5", false},
      {"%1$D %2$D %2$X %3$+D", {-7, 4000000000u, 12}, "-7 4000000000 ee6b2800 +12", false},
      {"100%% sure", {}, "100% sure", false},
      {"%S", {"a", "b"}, "%%S", true},     // without a position, one argument only
      {"%3$S", {"a", "b"}, "%%3$S", true}, // no third argument
      {"%+D", {7u}, "%%+D", true},         // the flag needs a signed argument
      {"%X", {7}, "%%X", true},            // hex needs an unsigned one
      {"%.2D %S", {"x"}, "%%.2D x", true}, // precision only on strings
      {"%D", {"x"}, "%%D", true},
      {"%5S", {"x"}, "%%5S", true},
      {"%.0S", {"x"}, "%%.0S", true},
      {"%.1.1S", {"x"}, "%%.1.1S", true},
      {"%s", {"x"}, "%%s", true},
      {"tail %", {}, "tail %%", true},
      {"%.3S",
       {"\xC3\xA9"
        "ab"},
       "\xC3\xA9"
       "a",
       false},                               // cut after three bytes
      {"%.3S", {"ab\xC3\xA9"}, "ab", false}, // not inside a character
      {"%.4S",
       {"a\xFF"
        "bcd"},
       "a\xEF\xBF\xBD",
       false},                                         // repaired first, then cut
      {"\xFF%S\xC3", {"\xFE"}, "\xFF\xFE\xC3", false}, // otherwise bytes pass as they are
  };
  for (const Case& c : cases) {
    plattest::LogCapture capture;
    EXPECT_EQ(formatList(c.text, c.values), c.expected) << c.text;
    std::vector<std::string> expectedLog;
    if (c.bad)
      expectedLog.push_back(std::string("0 Bad loc string for args - ") + c.text);
    EXPECT_EQ(capture.lines("Localize"), expectedLog) << c.text;
  }
}

TEST(LocFormat, FormatTextBuildsTheArgumentList) {
  EXPECT_STREQ(loc::formatText("%2$S=%1$D", 3, "n").get(), "n=3");
}

} // namespace
