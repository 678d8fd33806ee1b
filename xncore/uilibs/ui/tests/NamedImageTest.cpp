#include "ui/NamedImage.h"

#include "plat/IntParameter.h"
#include "plat/SysColors.h"
#include "plat/tests/Capture.h"
#include "xnutil/BuiltinResources.h"
#include "xnutil/tests/PngSamples.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ui {
namespace {

using Lines = std::vector<std::string>;

struct Darkness : plat::SysColors {
  bool lookup(const char*, plat::Rgb*) override { return false; }
  bool isDark() override { return dark; }
  bool dark = true;
};

class NamedImageCache : public testing::Test {
protected:
  void SetUp() override {
    add("ui_plain_2x.png", 32, 32, {0, 0, 255, 255});
    add("ui_plain_darkbg_2x.png", 32, 32, {255, 255, 255, 255});
    add("ui_only_2x.png", 32, 32, {0, 255, 0, 255});
    add("ui_wrong20x20.png", 19, 19, {0, 255, 0, 255});
  }
  void TearDown() override {
    for (const std::string& name : names_)
      xnutil::removeBuiltinResource(name.c_str());
    plat::SysColors::setProvider(nullptr);
  }
  void add(const char* name, int width, int height, xnutil::test::Rgba colour) {
    files_.push_back(xnutil::test::solidPng(width, height, colour));
    names_.push_back(name);
    xnutil::addBuiltinResource(name, files_.back().data(), files_.back().size());
  }

  std::vector<std::vector<std::uint8_t>> files_;
  std::vector<std::string> names_;
};

TEST_F(NamedImageCache, OneEntryForEachNameAndSize) {
  const auto automatic = getNamedImage("ui_plain", {});
  EXPECT_TRUE(automatic->isAutoSize());
  EXPECT_EQ(automatic->size(), rfb::Size(16, 16));
  EXPECT_EQ(automatic->getPixel({0, 0}), 0xff0000ffu);
  // The size it came out at finds it too; an automatic request does not find
  // an image asked for by size.
  EXPECT_EQ(getNamedImage("ui_plain", {16, 16}), automatic);
  const auto sized = getNamedImage("ui_plain", {20, 20});
  EXPECT_NE(sized, automatic);
  EXPECT_EQ(getNamedImage("ui_plain", {20, 20}), sized);
  const auto bySize = getNamedImage("ui_only", {16, 16});
  EXPECT_NE(getNamedImage("ui_only", {}), bySize);
}

// The toolkit's density parameter, which this test program doesn't link.
plat::IntParameter ppmm("ppmm", "", 4, true, nullptr, 1, 32);

TEST_F(NamedImageCache, AnAutomaticSizeIsOneForEachDisplayScale) {
  const auto single = getNamedImage("ui_only", {});
  ppmm.setInt(8, 10);
  const auto doubled = getNamedImage("ui_only", {});
  ppmm.unset(10, false);
  EXPECT_EQ(single->size(), rfb::Size(16, 16));
  EXPECT_EQ(doubled->size(), rfb::Size(32, 32));
  EXPECT_EQ(getNamedImage("ui_only", {}), single);
}

TEST_F(NamedImageCache, FailuresGiveEmptyImagesAndOneLogLine) {
  plattest::LogCapture log;
  const auto missing = getNamedImage("ui_missing", {});
  EXPECT_TRUE(missing->getRect().isEmpty());
  EXPECT_EQ(getNamedImage("ui_missing", {}), missing);
  EXPECT_EQ(log.lines("NamedImageWin"),
            Lines{"100 [NamedImageNotFound] Bad image name 'ui_missing'"});

  // Without logging only images that disagree about their size are reported.
  NamedImage quiet("ui_missing", {}, false);
  NamedImage unnamed("", {}, true);
  EXPECT_TRUE(unnamed.getRect().isEmpty());
  NamedImage wrong("ui_wrong", {20, 20}, false);
  EXPECT_TRUE(wrong.getRect().isEmpty());
  EXPECT_EQ(log.lines("NamedImageWin"),
            (Lines{"100 [NamedImageNotFound] Bad image name 'ui_missing'",
                   "0 [NamedImageBadSize] Badly sized image 'ui_wrong20x20'"}));
}

TEST_F(NamedImageCache, DarkVariantOnADarkBackground) {
  Darkness darkness;
  const struct {
    bool provider, dark, asked;
    const char* name;
    std::uint32_t pixel;
  } rows[] = {
      {true, true, true, "ui_plain", 0xffffffff},  {true, false, true, "ui_plain", 0xff0000ff},
      {true, true, false, "ui_plain", 0xff0000ff}, {false, true, true, "ui_plain", 0xff0000ff},
      {true, true, true, "ui_only", 0xff00ff00}, // no dark form: the plain one
  };
  for (const auto& row : rows) {
    darkness.dark = row.dark;
    plat::SysColors::setProvider(row.provider ? &darkness : nullptr);
    EXPECT_EQ(getNamedImage(row.name, {24, 24}, row.asked)->getPixel({0, 0}), row.pixel)
        << row.provider << row.dark << row.asked;
  }
}

} // namespace
} // namespace ui
