// The program's own images: every name the program asks for is there at every
// display scale, at the size its double-density drawing gives, and the forms
// drawn for the common scales are the ones delivered.
#include "plat/Configuration.h"
#include "plat/DString.h"
#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/BuiltinResources.h"
#include "xnutil/NamedImageLoader.h"

#include <gtest/gtest.h>

#include <vector>

namespace xnutil {
namespace {

// "ppmm" is declared beside the tests of the finder, in this same program.
plat::ConfigParameter& ppmm() {
  return *plat::Configuration::global().findParam("ppmm");
}

std::vector<std::uint32_t> pixels(rfb::ManagedPixelBuffer& buffer) {
  std::vector<std::uint32_t> all;
  for (std::int32_t y = 0; y < buffer.height(); ++y)
    for (std::int32_t x = 0; x < buffer.width(); ++x)
      all.push_back(buffer.getPixel({x, y}));
  return all;
}

TEST(BuiltinImages, EveryNameAtEveryScale) {
  const struct {
    const char* name;
    rfb::Size doubled;
  } images[] = {
      {"accept", {32, 32}},
      {"deny", {32, 32}},
      {"entrydown", {32, 32}},
      {"entryup", {32, 32}},
      {"global", {28, 28}},
      {"group", {28, 28}},
      {"guest", {28, 28}},
      {"noguest", {28, 28}},
      {"user", {28, 28}},
      {"infoframe_default", {32, 32}},
      {"infoframe_error", {32, 32}},
      {"infoframe_locked", {32, 32}},
      {"infoframe_notify", {32, 32}},
      {"infoframe_preference", {32, 32}},
      {"infoframe_success", {32, 32}},
      {"infoframe_warning", {32, 32}},
      {"prompt", {32, 32}},
      {"statuserror", {96, 96}},
      {"statusinfo", {96, 96}},
      {"statusprivate", {97, 98}},
      {"statusquestion", {96, 96}},
      {"statuswarning", {96, 96}},
      {"off-check", {26, 26}},
      {"on-check", {26, 26}},
      {"ind-check", {26, 26}},
  };
  for (const auto& image : images) {
    for (int scale : {4, 5, 6, 7, 8}) {
      SCOPED_TRACE(testing::Message() << image.name << " at " << scale);
      ppmm().setInt(scale, 0);
      rfb::ManagedPixelBuffer buffer;
      loadNamedImage(buffer, image.name, {}, true);
      const rfb::Size expected((image.doubled.width * scale + 4) / 8,
                               (image.doubled.height * scale + 4) / 8);
      ASSERT_EQ(buffer.size(), expected);
      EXPECT_EQ(buffer.getPf(), rfb::pfArgb8888()); // all drawn with transparency
      if (scale == 7)
        continue; // scaled from the double-density drawing
      plat::DString form;
      if (scale == 8)
        form.appendFormat("%s_2x.png", image.name);
      else
        form.appendFormat("%s%dx%d.png", image.name, expected.width, expected.height);
      const BuiltinResource resource = findBuiltinResource(form.get());
      ASSERT_NE(resource.data, nullptr) << form.get();
      PngFile drawn(resource.data, resource.length, true, form.get());
      rfb::ManagedPixelBuffer direct(drawn.getPf(), rfb::Rect::at({}, drawn.getSize()));
      drawn.load(direct, {});
      EXPECT_EQ(pixels(buffer), pixels(direct));
    }
  }
  ppmm().setInt(4, 0);

  // The application's picture is drawn for single density, with forms for the
  // desktop's icon sizes.
  rfb::ManagedPixelBuffer picture;
  loadNamedImage(picture, "oxnpermissionscreator", {}, true);
  EXPECT_EQ(picture.size(), rfb::Size(512, 512));
  for (int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    rfb::ManagedPixelBuffer icon;
    loadNamedImage(icon, "oxnpermissionscreator", {side, side}, true);
    EXPECT_EQ(icon.size(), rfb::Size(side, side));
  }
}

} // namespace
} // namespace xnutil
