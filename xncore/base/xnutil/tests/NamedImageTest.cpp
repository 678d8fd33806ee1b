#include "plat/IntParameter.h"
#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/BuiltinResources.h"
#include "xnutil/DisplayScale.h"
#include "xnutil/ImageExceptions.h"
#include "xnutil/NamedImageLoader.h"
#include "xnutil/tests/PngSamples.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace xnutil {
namespace {

// The toolkit declares "ppmm"; this program stands in for it.
plat::IntParameter ppmm("ppmm", "Physical display units per mm.", 4, true, nullptr, 1, 32);

TEST(DisplayScale, IsPpmmTimesTheDevicesScale) {
  struct Row {
    int ppmm;
    int percent;
    int scale;
  } rows[] = {{4, 100, 4}, {5, 100, 5}, {4, 200, 8}, {4, 150, 6},
              {5, 150, 8}, {4, 50, 4},  {8, 999, 32}};
  for (const Row& row : rows) {
    ppmm.setInt(row.ppmm, 10);
    setDeviceScalePercent(row.percent);
    EXPECT_EQ(displayScale(), row.scale) << row.ppmm << " at " << row.percent << "%";
  }
  setDeviceScalePercent(100);
  ppmm.unset(10, false);
}

/// A finder over a table of image sizes that records what it was asked for.
struct TableFinder : NamedImageFinder {
  explicit TableFinder(std::map<std::string, rfb::Size> images_) : images(std::move(images_)) {}
  bool load(const char* name) override {
    asked.push_back(name);
    const auto found = images.find(name);
    if (found == images.end())
      return false;
    held = found->second;
    return true;
  }
  rfb::Size getSize() const override { return held; }
  bool hasImage() const override { return held != rfb::Size(); }

  std::map<std::string, rfb::Size> images;
  std::vector<std::string> asked;
  rfb::Size held;
};

TEST(NamedImageFinder, OrderOfLookups) {
  using Names = std::vector<std::string>;
  const std::map<std::string, rfb::Size> accept{{"accept_2x", {32, 32}}};
  const struct {
    int scale;
    rfb::Size asked, settled;
    Names order;
  } rows[] = {
      {4, {}, {16, 16}, Names{"accept", "accept_2x", "accept16x16", "accept", "accept_2x"}},
      {8, {}, {32, 32}, Names{"accept", "accept_2x"}},
      {6, {}, {24, 24}, Names{"accept", "accept_2x", "accept24x24", "accept", "accept_2x"}},
      {4, {20, 20}, {20, 20}, Names{"accept20x20", "accept", "accept_2x"}},
  };
  for (const auto& row : rows) {
    TableFinder finder(accept);
    rfb::Size size = row.asked;
    findNamedImage(finder, "accept", size, row.scale);
    EXPECT_EQ(size, row.settled) << row.scale;
    EXPECT_EQ(finder.asked, row.order) << row.scale;
  }
}

struct Colour {
  const char* name;
  test::Rgba rgba;
  std::uint32_t pixel; // as decoded and premultiplied
};
const Colour red{"red", {255, 0, 0, 255}, 0xffff0000}, green{"green", {0, 255, 0, 255}, 0xff00ff00},
    blue{"blue", {0, 0, 255, 255}, 0xff0000ff}, grey{"grey", {80, 80, 80, 255}, 0xff505050},
    yellow{"yellow", {255, 255, 0, 255}, 0xffffff00};

class NamedImages : public testing::Test {
protected:
  void SetUp() override {
    add("tst_accept_2x.png", 32, 32, red);
    add("tst_private_2x.png", 97, 98, green);
    add("tst_both.png", 16, 16, green);
    add("tst_both_2x.png", 32, 32, blue);
    add("tst_small.png", 8, 8, grey);
    add("tst_exact20x20.png", 20, 20, yellow);
    add("tst_exact_2x.png", 32, 32, red);
    add("tst_wrong16x16.png", 15, 15, yellow);
    add("tst_wrong_2x.png", 32, 32, red);
    add("tst_pair.png", 16, 16, green);
    add("tst_pair_2x.png", 30, 30, blue);
    add("TST_UPPER_2X.PNG", 32, 32, blue);
    addBuiltinResource("tst_empty_2x.png", "", 0);
    // A PNG cut off inside its header.
    addBuiltinResource("tst_broken_2x.png", files_.front().data(), 20);
  }
  void TearDown() override {
    for (const std::string& name : names_)
      removeBuiltinResource(name.c_str());
    for (const char* name : {"tst_empty_2x.png", "tst_broken_2x.png"})
      removeBuiltinResource(name);
    ppmm.setInt(4, 0);
  }
  void add(const char* name, int width, int height, const Colour& colour) {
    files_.push_back(test::solidPng(width, height, colour.rgba));
    names_.push_back(name);
    addBuiltinResource(name, files_.back().data(), files_.back().size());
  }

  std::vector<std::vector<std::uint8_t>> files_;
  std::vector<std::string> names_;
};

TEST_F(NamedImages, SizeAndSourceForEachScale) {
  const struct {
    const char* name;
    int scale;
    rfb::Size asked, delivered;
    const Colour& from;
  } rows[] = {
      {"tst_accept", 4, {}, {16, 16}, red},         {"tst_accept", 8, {}, {32, 32}, red},
      {"tst_accept", 6, {}, {24, 24}, red},         {"tst_accept", 4, {20, 20}, {20, 20}, red},
      {"tst_private", 8, {}, {97, 98}, green},      {"tst_both", 4, {}, {16, 16}, green},
      {"tst_both", 8, {}, {32, 32}, blue},          {"tst_both", 4, {24, 24}, {24, 24}, blue},
      {"tst_both", 4, {12, 12}, {12, 12}, green},   {"tst_small", 4, {20, 20}, {20, 20}, grey},
      {"tst_exact", 4, {20, 20}, {20, 20}, yellow}, {"tst_upper", 8, {}, {32, 32}, blue},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.name << " at " << row.scale);
    ppmm.setInt(row.scale, 0);
    rfb::ManagedPixelBuffer buffer;
    loadNamedImage(buffer, row.name, row.asked, true);
    EXPECT_EQ(buffer.size(), row.delivered);
    EXPECT_EQ(buffer.getPixel({row.delivered.width - 1, row.delivered.height - 1}), row.from.pixel)
        << row.from.name;
  }
}

TEST_F(NamedImages, Failures) {
  const struct {
    const char* name;
    int scale;
    rfb::Size asked;
    const char* type;
    const char* message;
  } rows[] = {
      {"tst_none", 4, {}, "NamedImageNotFound", "Bad image name 'tst_none'"},
      {"tst_none", 4, {16, 16}, "NamedImageNotFound", "Bad image name 'tst_none'"},
      {"tst_empty", 8, {}, "NamedImageNotFound", "Bad image name 'tst_empty'"},
      {"tst_wrong", 4, {}, "NamedImageBadSize", "Badly sized image 'tst_wrong16x16'"},
      {"tst_pair",
       6,
       {},
       "NamedImageBadSize",
       "Badly sized image 'tst_pair': @2x/@1x images differ"},
      {"tst_broken", 4, {}, "PngException", "Bad PNG data: tst_broken_2x.png"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ppmm.setInt(row.scale, 0);
    try {
      NamedImageLoader loader(row.name, row.asked, true);
      ADD_FAILURE() << "no exception";
    } catch (const plat::Exception& e) {
      EXPECT_STREQ(e.type(), row.type);
      EXPECT_STREQ(e.what(), row.message);
    }
  }
}

} // namespace
} // namespace xnutil
