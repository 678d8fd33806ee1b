// The text operations on paths in both styles, table by table: drive, UNC,
// extended and device forms are text alone, so they are checked on every
// platform. Then the expansion of variables in paths.

#include "plat/Path.h"

#include "plat/Exception.h"
#include "plat/FileSystem.h"
#include "plat/PathExpand.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

namespace plat {
namespace {

constexpr PathStyle win = PathStyle::Windows;
constexpr PathStyle posix = PathStyle::Posix;

std::string textOf(const String& text) {
  return text.isNull() ? "<null>" : text.get();
}

std::string textOf(const char* text) {
  return text ? text : "<null>";
}

std::string describe(PathStyle style, const char* path) {
  return (style == win ? "windows " : "posix ") + textOf(path);
}

TEST(PathRoot, FindsTheRootOfEachForm) {
  struct {
    PathStyle style;
    const char* path;
    int root;
    bool absolute;
  } cases[] = {{win, R"(C:\dir)", 3, true},     {win, "C:dir", 2, false},
               {win, R"(\dir)", 1, false},      {win, R"(\\server\share\dir)", 14, true},
               {win, R"(\\?\C:\dir)", 6, true}, {win, R"(\\?\UNC\server\share\dir)", 20, true},
               {win, R"(\\.\COM1)", 8, true},   {win, R"(dir\file)", 0, false},
               {win, nullptr, 0, false},        {posix, "/usr", 1, true},
               {posix, "//usr", 2, true},       {posix, R"(C:\dir)", 0, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(pathRootLength(c.path, c.style), c.root) << describe(c.style, c.path);
    EXPECT_EQ(pathIsAbsolute(c.path, c.style), c.absolute) << describe(c.style, c.path);
  }
}

TEST(PathElements, NormalisesAndSplits) {
  // The extended and device forms are taken literally.
  struct {
    PathStyle style;
    const char* path;
    const char* normalised;
    const char* dir;
    const char* base;
  } cases[] = {
      {win, R"(C:\a\b\..\c)", R"(C:\a\c)", R"(C:\a)", "c"},
      {win, "C:/a//b/./c/", R"(C:\a\b\c)", R"(C:\a\b)", "c"},
      {win, R"(C:\..\..)", R"(C:\)", R"(C:\)", "."},
      {win, "c:", "c:", "c:", "c:"},
      {win, R"(C:a\..\..)", "C:..", R"(C:..\..)", "."},
      {win, "/a/../../b", R"(\b)", R"(\)", "b"},
      {win, R"(\\server\share\a\..\b)", R"(\\server\share\b)", R"(\\server\share)", "b"},
      {win, R"(a\b\..\..\..\c)", R"(..\c)", "..", "c"},
      {win, "..", "..", R"(..\..)", "."},
      {win, "", "", ".", ""},
      {win, nullptr, nullptr, nullptr, nullptr},
      {win, R"(\\?\C:\a\..\b\)", R"(\\?\C:\a\..\b\)", R"(\\?\C:\a\..)", "b"},
      {win, R"(\\?\C:\file)", R"(\\?\C:\file)", R"(\\?\C:)", "file"},
      {win, R"(\\?\UNC\srv\share\x\\)", R"(\\?\UNC\srv\share\x\\)", R"(\\?\UNC\srv\share)", "x"},
      {win, R"(\\.\COM1\)", R"(\\.\COM1\)", R"(\\.\COM1)", R"(\\.\COM1)"},
      {win, R"(\\.\pipe\a/./b)", R"(\\.\pipe\a/./b)", R"(\\.\pipe\a/.)", "b"},
      {posix, "//a///b/", "/a/b", "/a", "b"},
      {posix, "/..", "/", "/", "."},
      {posix, "/", "/", "/", "/"},
      {posix, "a/../../b", "../b", "..", "b"},
      {posix, R"(a\b/c)", R"(a\b/c)", R"(a\b)", "c"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(describe(c.style, c.path));
    int root = -1;
    EXPECT_EQ(textOf(pathNormalise(c.path, &root, c.style)), textOf(c.normalised));
    EXPECT_EQ(root, pathRootLength(c.normalised, c.style));
    EXPECT_EQ(textOf(pathDirName(c.path, c.style)), textOf(c.dir));
    EXPECT_EQ(textOf(pathBaseName(c.path, nullptr, c.style)), textOf(c.base));
  }
  struct {
    PathStyle style;
    const char* path;
    const char* extension;
    const char* base;
  } extensions[] = {
      {win, R"(C:\dir\file.exe)", ".exe", "file"},     {win, R"(C:\dir\file.EXE)", ".exe", "file"},
      {win, R"(C:\dir\file.exe)", ".txt", "file.exe"}, {win, ".exe", ".exe", ".exe"},
      {win, "file.tar.gz", ".gz", "file.tar"},         {posix, "/tmp/log.txt", ".TXT", "log"}};
  for (const auto& c : extensions)
    EXPECT_EQ(textOf(pathBaseName(c.path, c.extension, c.style)), c.base)
        << describe(c.style, c.path);
}

TEST(PathJoin, PutsOneSeparatorBetween) {
  struct {
    PathStyle style;
    const char* dir;
    const char* name;
    const char* expected;
  } cases[] = {{win, R"(C:\dir)", "f", R"(C:\dir\f)"},
               {win, R"(C:\dir\)", "f", R"(C:\dir\f)"},
               {win, "C:/dir/", "f", "C:/dir/f"},
               {win, "", "f", "f"},
               {win, nullptr, "f", "f"},
               {posix, "/a", "b", "/a/b"},
               {posix, "/a/", "b", "/a/b"},
               {posix, R"(a\)", "b", R"(a\/b)"}};
  for (const auto& c : cases)
    EXPECT_EQ(textOf(pathJoin(c.dir, c.name, c.style)), c.expected)
        << describe(c.style, c.dir) << " + " << c.name;
}

TEST(PathSafeName, ReplacesWhatNoFileNameMayHold) {
  struct {
    const char* name;
    const char* expected;
  } cases[] = {{"a:b/c?", "a-b-c-"}, {R"(<|>"*\)", "------"},   {"a\tb\x7f_\x01", "a-b-_-"},
               {"CON", ""},          {"con.txt", ".txt"},       {"lpt9", ""},
               {"AUX.", "-"},        {"COM10", "COM10"},        {"xCON", "xCON"},
               {"name.", "name-"},   {"Grüße.txt", "Grüße.txt"}};
  for (const auto& c : cases)
    EXPECT_EQ(textOf(pathMakeSafeName(c.name, '-')), c.expected) << c.name;
  EXPECT_EQ(textOf(pathMakeSafeName("a?b", '_')), "a_b");
  EXPECT_TRUE(pathMakeSafeName(nullptr, '-').isNull());
}

TEST(PathMakeAbsolute, PutsRelativePathsBehindTheCurrentDirectory) {
  String current = getCurrentDir();
  std::string base = current.get();
  EXPECT_EQ(textOf(pathMakeAbsolute("a/./b/")), base + "/a/b");
  EXPECT_EQ(textOf(pathMakeAbsolute("/x/../y")), "/y");
  EXPECT_EQ(textOf(pathMakeAbsolute("..")), textOf(pathDirName(current.get())));
  EXPECT_EQ(textOf(pathMakeAbsolute(".")), base);
}

TEST(PathExpand, ReplacesNamesFromTheMap) {
  PathVariables variables{{String("X"), String("ex")}, {String("DIR_1"), String("/var/log")}};
  struct {
    const char* text;
    const char* expected;
  } cases[] = {{"a$$b", "a$b"},
               {"${X}y", "exy"},
               {"$Xy", ""},
               {"$DIR_1/app.log", "/var/log/app.log"},
               {"${DIR_1}${X}", "/var/logex"},
               {"${}", "$"},
               {"${DIR_1", "/var/log"},
               {"a$", "a$"},
               {"$-x", "$-x"},
               {"$UNSET/x", "/x"},
               {nullptr, nullptr}};
  for (const auto& c : cases)
    EXPECT_EQ(textOf(pathExpand(c.text, &variables)), textOf(c.expected)) << textOf(c.text);

  // Strict: an unknown name raises.
  EXPECT_EQ(textOf(pathExpand("${X}", &variables, true)), "ex");
  for (const char* text : {"${NOPE}y", "$NOPE", "a${NOPE"}) {
    try {
      pathExpand(text, &variables, true);
      ADD_FAILURE() << text;
    } catch (const Exception& e) {
      EXPECT_STREQ(e.what(), "unknown environment variable: NOPE") << text;
    }
  }
}

TEST(PathExpand, UsesTheEnvironmentOnlyWithoutAMap) {
  ASSERT_EQ(setenv("XN_PATH_EXPAND_TEST", "/from/env", 1), 0);
  unsetenv("XN_PATH_EXPAND_UNSET");
  EXPECT_EQ(textOf(pathExpand("$XN_PATH_EXPAND_TEST/x")), "/from/env/x");
  EXPECT_EQ(textOf(pathExpand("${XN_PATH_EXPAND_TEST}", nullptr, false, false)), "");
  EXPECT_THROW(pathExpand("$XN_PATH_EXPAND_TEST", nullptr, true, false), Exception);
  EXPECT_THROW(pathExpand("$XN_PATH_EXPAND_UNSET", nullptr, true, true), Exception);
  PathVariables empty;
  EXPECT_EQ(textOf(pathExpand("$XN_PATH_EXPAND_TEST", &empty)), "");
  unsetenv("XN_PATH_EXPAND_TEST");
}

} // namespace
} // namespace plat
