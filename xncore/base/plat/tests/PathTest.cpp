// The text operations on paths, in both styles, table by table. The Windows
// forms are checked on every platform, since they are text alone.

#include "plat/Path.h"

#include "plat/FileSystem.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

namespace plat {
namespace {

constexpr PathStyle win = PathStyle::Windows;
constexpr PathStyle posix = PathStyle::Posix;

const char* describe(PathStyle style) {
  return style == win ? "windows" : "posix";
}

std::string textOf(const String& text) {
  return text.isNull() ? "<null>" : text.get();
}

// A case of a function from one path text to another.
struct TextCase {
  PathStyle style;
  const char* path;
  const char* expected;
};

template <class Function>
void checkTextCases(std::initializer_list<TextCase> cases, Function function) {
  for (const TextCase& c : cases)
    EXPECT_EQ(textOf(function(c.path, c.style)), c.expected ? c.expected : "<null>")
        << describe(c.style) << " \"" << (c.path ? c.path : "<null>") << "\"";
}

TEST(PathRoot, FindsTheEndOfEachForm) {
  struct Case {
    PathStyle style;
    const char* path;
    int root;
  } cases[] = {
      {win, R"(C:\dir)", 3},
      {win, "C:/dir", 3},
      {win, "C:dir", 2},
      {win, R"(\dir)", 1},
      {win, "/dir", 1},
      {win, R"(\\server\share\dir)", 14},
      {win, R"(\\server\share)", 14},
      {win, R"(\\server)", 8},
      {win, R"(\\?\C:\dir)", 6},
      {win, R"(\\?\UNC\server\share\dir)", 20},
      {win, R"(\\.\pipe\name)", 8},
      {win, R"(\\.\COM1)", 8},
      {win, "dir\\file", 0},
      {win, "", 0},
      {win, nullptr, 0},
      {posix, "/usr", 1},
      {posix, "//usr", 2},
      {posix, "usr/lib", 0},
      {posix, R"(C:\dir)", 0},
  };
  for (const Case& c : cases)
    EXPECT_EQ(pathRootLength(c.path, c.style), c.root)
        << describe(c.style) << " " << (c.path ? c.path : "<null>");
}

TEST(PathNormalise, ResolvesDotsAndSeparators) {
  checkTextCases(
      {
          {win, R"(C:\a\b\..\c)", R"(C:\a\c)"},
          {win, "C:/a//b/./c/", R"(C:\a\b\c)"},
          {win, R"(C:\..\..)", R"(C:\)"},
          {win, R"(C:\)", R"(C:\)"},
          {win, "c:", "c:"},
          {win, R"(C:a\..\..)", "C:.."},
          {win, R"(\a\.\b)", R"(\a\b)"},
          {win, "/a/../../b", R"(\b)"},
          {win, R"(\\server\share\a\..\b)", R"(\\server\share\b)"},
          {win, "//server/share/x/", R"(\\server\share\x)"},
          {win, R"(\\server\share\..)", R"(\\server\share)"},
          {win, R"(a\b\..\..\..\c)", R"(..\c)"},
          {win, R"(..\..\a)", R"(..\..\a)"},
          {win, R"(a\..)", "."},
          {win, "./", "."},
          {win, "a//b", R"(a\b)"},
          {win, "", ""},
          {win, nullptr, nullptr},
          {posix, "/a/b/../c", "/a/c"},
          {posix, "//a///b/", "/a/b"},
          {posix, "/..", "/"},
          {posix, "a/../../b", "../b"},
          {posix, R"(a\b/c)", R"(a\b/c)"},
          {posix, "./a/", "a"},
          {posix, ".", "."},
      },
      [](const char* path, PathStyle style) { return pathNormalise(path, nullptr, style); });
}

TEST(PathNormalise, LeavesExtendedAndDeviceFormsAlone) {
  checkTextCases(
      {
          {win, R"(\\?\C:\a\..\b\)", R"(\\?\C:\a\..\b\)"},
          {win, R"(\\?\UNC\server\share\x\\)", R"(\\?\UNC\server\share\x\\)"},
          {win, R"(\\.\COM1\)", R"(\\.\COM1\)"},
          {win, R"(\\.\pipe\a/./b)", R"(\\.\pipe\a/./b)"},
      },
      [](const char* path, PathStyle style) { return pathNormalise(path, nullptr, style); });
}

TEST(PathNormalise, ReportsTheRootOfItsResult) {
  struct Case {
    PathStyle style;
    const char* path;
    int root;
  } cases[] = {
      {win, "C:/x/y", 3},      {win, "c:x", 2}, {win, "//srv/share//x", 11},
      {win, R"(\\?\C:\x)", 6}, {win, "x/y", 0}, {posix, "///x", 1},
      {posix, "x", 0},
  };
  for (const Case& c : cases) {
    int root = -1;
    pathNormalise(c.path, &root, c.style);
    EXPECT_EQ(root, c.root) << describe(c.style) << " " << c.path;
  }
}

TEST(PathIsAbsolute, AcceptsOnlyFullyQualifiedForms) {
  struct Case {
    PathStyle style;
    const char* path;
    bool absolute;
  } cases[] = {
      {win, R"(C:\x)", true},
      {win, "C:/x", true},
      {win, "C:x", false},
      {win, R"(\x)", false},
      {win, R"(\\srv\share)", true},
      {win, R"(\\?\C:\x)", true},
      {win, R"(\\.\COM1)", true},
      {win, "x", false},
      {win, "", false},
      {win, nullptr, false},
      {posix, "/x", true},
      {posix, "x", false},
      {posix, R"(C:\x)", false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(pathIsAbsolute(c.path, c.style), c.absolute)
        << describe(c.style) << " " << (c.path ? c.path : "<null>");
}

TEST(PathBaseName, TakesTheLastElement) {
  struct Case {
    PathStyle style;
    const char* path;
    const char* extension;
    const char* expected;
  } cases[] = {
      {win, R"(C:\dir\file.exe)", ".exe", "file"},
      {win, R"(C:\dir\file.EXE)", ".exe", "file"},
      {win, R"(C:\dir\file.exe)", ".txt", "file.exe"},
      {win, ".exe", ".exe", ".exe"},
      {win, "file.tar.gz", ".gz", "file.tar"},
      {win, R"(C:\)", nullptr, R"(C:\)"},
      {win, R"(C:\dir\\)", nullptr, "dir"},
      {win, "C:/a/b", nullptr, "b"},
      {win, "C:", nullptr, "C:"},
      {win, "C:x", nullptr, "x"},
      {win, "file", nullptr, "file"},
      {win, ".", nullptr, "."},
      {win, "..", nullptr, "."},
      {win, R"(a\..)", nullptr, "."},
      {win, R"(\\srv\share)", nullptr, R"(\\srv\share)"},
      {win, R"(\\srv\share\x.txt)", ".txt", "x"},
      {win, nullptr, nullptr, nullptr},
      {posix, "/usr/lib/", nullptr, "lib"},
      {posix, "/", nullptr, "/"},
      {posix, R"(a\b)", nullptr, R"(a\b)"},
      {posix, "/tmp/log.txt", ".TXT", "log"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(textOf(pathBaseName(c.path, c.extension, c.style)),
              c.expected ? c.expected : "<null>")
        << describe(c.style) << " " << (c.path ? c.path : "<null>");
}

TEST(PathDirName, TakesAllButTheLastElement) {
  checkTextCases(
      {
          {win, "file", "."},
          {win, R"(C:\file)", R"(C:\)"},
          {win, R"(C:\dir\file)", R"(C:\dir)"},
          {win, "C:/dir/sub/", R"(C:\dir)"},
          {win, R"(C:\)", R"(C:\)"},
          {win, "C:file", "C:"},
          {win, R"(\file)", R"(\)"},
          {win, "..", R"(..\..)"},
          {win, ".", ".."},
          {win, R"(..\..)", R"(..\..\..)"},
          {win, R"(a\..\b)", "."},
          {win, R"(C:\a\b\..\c)", R"(C:\a)"},
          {win, R"(\\srv\share\file)", R"(\\srv\share)"},
          {win, R"(\\srv\share)", R"(\\srv\share)"},
          {win, R"(\\?\C:\dir\file)", R"(\\?\C:\dir)"},
          {win, R"(\\?\C:\file)", R"(\\?\C:)"},
          {win, "", "."},
          {win, nullptr, nullptr},
          {posix, "/a/b", "/a"},
          {posix, "/a", "/"},
          {posix, "/", "/"},
          {posix, "a", "."},
          {posix, "..", "../.."},
      },
      [](const char* path, PathStyle style) { return pathDirName(path, style); });
}

TEST(PathJoin, PutsOneSeparatorBetween) {
  struct Case {
    PathStyle style;
    const char* dir;
    const char* name;
    const char* expected;
  } cases[] = {
      {win, R"(C:\dir)", "f", R"(C:\dir\f)"},
      {win, R"(C:\dir\)", "f", R"(C:\dir\f)"},
      {win, "C:/dir/", "f", "C:/dir/f"},
      {win, "C:", "f", R"(C:\f)"},
      {win, "", "f", "f"},
      {win, nullptr, "f", "f"},
      {posix, "/a", "b", "/a/b"},
      {posix, "/a/", "b", "/a/b"},
      {posix, R"(a\)", "b", R"(a\/b)"},
      {posix, "/a", "", "/a/"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(textOf(pathJoin(c.dir, c.name, c.style)), c.expected)
        << describe(c.style) << " " << (c.dir ? c.dir : "<null>") << " + " << c.name;
}

TEST(PathSafeName, ReplacesWhatNoFileNameMayHold) {
  struct Case {
    const char* name;
    char replacement;
    const char* expected;
  } cases[] = {
      {"a:b/c?", '-', "a-b-c-"},
      {R"(<|>"*\)", '-', "------"},
      {"a\tb\x7f"
       "c\x01",
       '_', "a_b_c_"},
      {"CON", '-', ""},
      {"con.txt", '-', ".txt"},
      {"Com1.log", '-', ".log"},
      {"lpt9", '-', ""},
      {"AUX.", '-', "-"},
      {"COM10", '-', "COM10"},
      {"CONSOLE", '-', "CONSOLE"},
      {"xCON", '-', "xCON"},
      {"name.", '-', "name-"},
      {"name ", '_', "name_"},
      {"report.txt", '-', "report.txt"},
      {"Grüße.txt", '-', "Grüße.txt"},
      {"", '-', ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(textOf(pathMakeSafeName(c.name, c.replacement)), c.expected) << c.name;
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

} // namespace
} // namespace plat
