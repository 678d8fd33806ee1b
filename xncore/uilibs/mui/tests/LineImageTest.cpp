// Lines and images on the headless binding: what each measures, what
// setThickness keeps, which picture shows at which density, who owns
// supplied pixels, describe(), and that neither raises an event.
#include "EventCounter.h"
#include "HeadlessForm.h"

#include "mui/MuImage.h"
#include "mui/MuLine.h"
#include "mui/headless/MuImageHeadless.h"
#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/BuiltinResources.h"
#include "xnutil/tests/PngSamples.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

using Line = HeadlessForm;

TEST_F(Line, MeasuresItsThicknessAcrossAndThePeerAlong) {
  // A line has no text: along it, the peer measures an empty text, 0 wide
  // and one line (16 pixels) high.
  const struct {
    bool horizontal;
    int type;
    int thickness;
    int kept;
    int minWidth;
    int minHeight;
    const char* describe;
  } cases[] = {
      {true, MuLine::Color, 3, 3, 0, 3, "type horizontal type color\n"},
      {true, MuLine::Etched, 5, 2, 0, 2, "type horizontal type etched\n"},
      {false, MuLine::Color, 4, 4, 4, 16, "type vertical type color\n"},
      {false, MuLine::Etched, 7, 2, 2, 16, "type vertical type etched\n"},
  };
  for (const auto& c : cases) {
    MuLine* line = MuLine::create(dialog.get(), "l", c.horizontal, c.type, c.thickness);
    EXPECT_EQ(line->thickness(), c.kept);
    EXPECT_EQ(line->minWidth(100), c.minWidth);
    EXPECT_EQ(line->minHeight(100), c.minHeight);
    EXPECT_THAT(line->describe().get(),
                testing::EndsWith(std::string("element Line\n") + c.describe));
    EXPECT_STREQ(line->typeName(), "line");
    dialog->removeChild(line);
  }
}

TEST_F(Line, SetThicknessKeepsEtchedLinesAtTwoAndRepaints) {
  EventCounter counter;
  dialog->addObserver(&counter);
  MuLine* colour = MuLine::create(dialog.get(), "c", true, MuLine::Color, 1);
  MuLine* etched = MuLine::create(dialog.get(), "e", true, MuLine::Etched, 1);
  colour->setThickness(6);
  etched->setThickness(6);
  EXPECT_EQ(colour->minHeight(10), 6);
  EXPECT_EQ(etched->minHeight(10), 2);
  EXPECT_THAT(MuCommonHeadless::of(colour)->calls(), testing::Contains("styleChanged"));
  EXPECT_THAT(MuCommonHeadless::of(etched)->calls(), testing::Contains("styleChanged"));
  EXPECT_FALSE(colour->perform("click", "1"));
  EXPECT_EQ(counter.total, 0);
  dialog->removeObserver(&counter);
}

// Pictures of the test's own: "<name>_2x.png" is drawn for double density.
class Image : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    add("muimage_four_2x.png", 40, 24);
    add("muimage_eight_2x.png", 40, 24);
  }
  void TearDown() override {
    for (const std::string& name : names_)
      xnutil::removeBuiltinResource(name.c_str());
    HeadlessForm::TearDown();
  }
  void add(const char* name, int width, int height) {
    files_.push_back(xnutil::test::solidPng(width, height, {0, 128, 255, 255}));
    names_.push_back(name);
    xnutil::addBuiltinResource(name, files_.back().data(), files_.back().size());
  }
  static MuImageHeadless* make(MuContainer* parent, const char* image, const Size* size) {
    return static_cast<MuImageHeadless*>(MuImage::create(parent, "img", image, size));
  }

  std::vector<std::vector<std::uint8_t>> files_;
  std::vector<std::string> names_;
};

TEST_F(Image, ShowsANamedImageAtTheDisplaysDensityOrAtTheSizeAskedFor) {
  // Each density asks for a name of its own: the cache keeps one automatic
  // size a name, the first it was asked at.
  MuImage* single = make(dialog.get(), "muimage_four", nullptr);
  EXPECT_EQ(single->getImageSize(), Size(20, 12));
  EXPECT_EQ(single->minWidth(0), 20);
  EXPECT_EQ(single->minHeight(999), 12);
  ppmmParameter.setInt(8, 10);
  MuImage* twice = make(dialog.get(), "muimage_eight", nullptr);
  EXPECT_EQ(twice->getImageSize(), Size(40, 24));
  const Size asked{30, 18};
  MuImage* scaled = make(dialog.get(), "muimage_eight", &asked);
  EXPECT_EQ(scaled->getImageSize(), asked);
  // The program's own icons are there too.
  EXPECT_EQ(make(dialog.get(), "infoframe_error", &asked)->getImageSize(), asked);
}

TEST_F(Image, AnUnknownNameShowsNothingAndMeasuresNothing) {
  EventCounter counter;
  dialog->addObserver(&counter);
  MuImage* image = make(dialog.get(), "muimage_four", nullptr);
  EXPECT_FALSE(image->setImage("no_such_picture", nullptr));
  EXPECT_EQ(image->getImageSize(), Size());
  EXPECT_EQ(image->minWidth(0), 0);
  EXPECT_STREQ(image->imageName(), "no_such_picture");
  EXPECT_TRUE(image->setImage("muimage_four", nullptr));
  EXPECT_EQ(make(dialog.get(), nullptr, nullptr)->getImageSize(), Size());
  EXPECT_EQ(counter.total, 0);
  dialog->removeObserver(&counter);
}

// Pixels that tell when they go.
struct TrackedBuffer : rfb::ManagedPixelBuffer {
  TrackedBuffer(int* gone)
      : rfb::ManagedPixelBuffer(rfb::PixelFormat(), {0, 0, 5, 7}), gone_(gone) {}
  ~TrackedBuffer() override { ++*gone_; }
  int* gone_;
};

TEST_F(Image, OwnsSuppliedPixelsOnlyWhenTold) {
  MuImageHeadless* image = make(dialog.get(), "muimage_four", nullptr);
  int ownedGone = 0;
  int lentGone = 0;
  auto* owned = new TrackedBuffer(&ownedGone);
  TrackedBuffer lent(&lentGone);
  image->setBuffer(owned, true);
  EXPECT_EQ(image->imageName(), nullptr);
  EXPECT_EQ(image->shown(), owned);
  EXPECT_EQ(image->getImageSize(), Size(5, 7));
  image->setBuffer(&lent, false);
  EXPECT_EQ(ownedGone, 1); // replaced, so let go
  image->setImage("muimage_four", nullptr);
  dialog->removeChild(image);
  EXPECT_EQ(lentGone, 0);
}

TEST_F(Image, DescribesItsNameAndSize) {
  MuImage* image = make(dialog.get(), "muimage_four", nullptr);
  image->setSize({30, 40});
  EXPECT_THAT(image->describe().get(),
              testing::EndsWith("size 30,40\nelement Image\nvalue muimage_four\nimSize 30,40\n"));
  image->setBuffer(nullptr, false);
  EXPECT_THAT(image->describe().get(), testing::HasSubstr("value <unknown>\n"));
  EXPECT_STREQ(image->typeName(), "image");
}

} // namespace
} // namespace mui::test
