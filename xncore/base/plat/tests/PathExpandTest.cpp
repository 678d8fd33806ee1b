// Expansion of $NAME and ${NAME} in path texts, from a map and from the
// environment.

#include "plat/PathExpand.h"

#include "plat/Exception.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

namespace plat {
namespace {

std::string expanded(const char* text, const PathVariables* variables, bool strict = false,
                     bool useEnvironment = true) {
  String result = pathExpand(text, variables, strict, useEnvironment);
  return result.isNull() ? "<null>" : result.get();
}

TEST(PathExpand, ReplacesNamesFromTheMap) {
  PathVariables variables{{String("X"), String("ex")},
                          {String("DIR_1"), String("/var/log")},
                          {String("EMPTY"), String("")}};
  struct Case {
    const char* text;
    const char* expected;
  } cases[] = {
      {"plain/path", "plain/path"},
      {"a$$b", "a$b"},
      {"${X}y", "exy"},
      {"$Xy", ""},
      {"$X/y", "ex/y"},
      {"$DIR_1/app.log", "/var/log/app.log"},
      {"${DIR_1}${X}", "/var/logex"},
      {"${}", "$"},
      {"${X", "ex"},
      {"${DIR_1", "/var/log"},
      {"a$", "a$"},
      {"$-x", "$-x"},
      {"[$EMPTY]", "[]"},
      {"$UNSET/x", "/x"},
      {"$$X", "$X"},
      {"", ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(expanded(c.text, &variables), c.expected) << c.text;
  EXPECT_EQ(expanded(nullptr, &variables), "<null>");
}

TEST(PathExpand, UnknownNamesRaiseWhenStrict) {
  PathVariables variables{{String("X"), String("ex")}};
  EXPECT_EQ(expanded("${X}", &variables, true), "ex");
  for (const char* text : {"${NOPE}y", "$NOPE", "a${NOPE"}) {
    try {
      pathExpand(text, &variables, true, true);
      ADD_FAILURE() << text;
    } catch (const Exception& e) {
      EXPECT_STREQ(e.what(), "unknown environment variable: NOPE") << text;
    }
  }
}

TEST(PathExpand, UsesTheEnvironmentOnlyWithoutAMap) {
  ASSERT_EQ(setenv("XN_PATH_EXPAND_TEST", "/from/env", 1), 0);
  unsetenv("XN_PATH_EXPAND_UNSET");
  EXPECT_EQ(expanded("$XN_PATH_EXPAND_TEST/x", nullptr), "/from/env/x");
  EXPECT_EQ(expanded("${XN_PATH_EXPAND_TEST}", nullptr, false, false), "");
  EXPECT_THROW(pathExpand("$XN_PATH_EXPAND_TEST", nullptr, true, false), Exception);
  EXPECT_THROW(pathExpand("$XN_PATH_EXPAND_UNSET", nullptr, true, true), Exception);
  PathVariables variables;
  EXPECT_EQ(expanded("$XN_PATH_EXPAND_TEST", &variables), "");
  unsetenv("XN_PATH_EXPAND_TEST");
}

} // namespace
} // namespace plat
