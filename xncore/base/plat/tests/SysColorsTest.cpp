#include "plat/SysColors.h"

#include <gtest/gtest.h>

#include <string>

namespace plat {
namespace {

struct FakeDesktop : SysColors {
  bool dark = false;
  bool lookup(const char* name, Rgb* rgb) override {
    if (std::string(name) != "contentBg")
      return false;
    *rgb = dark ? Rgb{1, 2, 3} : Rgb{250, 251, 252};
    return true;
  }
  bool isDark() override { return dark; }
};

TEST(SysColors, NamesResolveThroughTheDesktopThenLiteralsThenThePalette) {
  FakeDesktop desktop;
  SysColors::setProvider(&desktop);
  struct Row {
    const char* name;
    bool dark;
    bool known;
    Rgb rgb;
  } rows[] = {
      {"contentBg", false, true, {250, 251, 252}},
      {"contentBg", true, true, {1, 2, 3}},
      {"selectedBg", false, true, {0xd1, 0xe8, 0xff}},
      {"selectedBg", true, true, {0x41, 0x64, 0x8a}},
      {"#0a0B0c", false, true, {10, 11, 12}},
      {"orange", true, true, {0xff, 0xa5, 0x00}},
      {"#0a0b0", false, false, {}},
      {"#0a0b0g", false, false, {}},
      {"Orange", false, false, {}},
      {"", false, false, {}},
  };
  for (const Row& row : rows) {
    desktop.dark = row.dark;
    Rgb rgb{99, 99, 99};
    EXPECT_EQ(resolveColour(row.name, &rgb), row.known) << row.name;
    if (row.known) {
      EXPECT_EQ(rgb, row.rgb) << row.name << " dark " << row.dark;
    }
  }
  SysColors::setProvider(nullptr);
  Rgb rgb;
  ASSERT_TRUE(resolveColour(nullptr, "contentText", &rgb));
  EXPECT_EQ(rgb, (Rgb{0, 0, 0}));
  EXPECT_FALSE(resolveColour(nullptr, &rgb));
}

} // namespace
} // namespace plat
