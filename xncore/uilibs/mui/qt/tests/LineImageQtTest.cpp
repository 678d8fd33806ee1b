// Lines and images on Qt: an etched line is the frame's sunken line, a
// coloured one a band of its thickness in the text colour; a named image is
// painted from the cached pixels, without a copy, in the middle of its area.
#include "QtForm.h"
#include "mui/qt/PixelImageQt.h"
#include "xnutil/DisplayScale.h"

#include "mui/MuImage.h"
#include "mui/MuLine.h"
#include "ui/NamedImage.h"

#include <QFrame>
#include <QImage>

namespace mui::test {
namespace {

using LineImageQt = QtForm;

TEST_F(LineImageQt, AnEtchedLineIsSunkenAndAColouredOneABandOfItsColour) {
  MuLine* etched = MuLine::create(dialog.get(), "etched", false, MuLine::Etched, 9);
  auto* frame = qobject_cast<QFrame*>(MuCommonQt::of(etched)->widget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->frameShape(), QFrame::VLine);
  EXPECT_EQ(frame->frameShadow(), QFrame::Sunken);

  MuLine* band = MuLine::create(dialog.get(), "band", true, MuLine::Color, 3);
  band->setTextColour("#ff0000");
  band->setSize({40, 9});
  QImage image = grabOf(band);
  EXPECT_EQ(image.pixel(20, 4), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(20, 3), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(20, 5), qRgb(255, 0, 0));
  EXPECT_NE(image.pixel(20, 2), qRgb(255, 0, 0));
  EXPECT_NE(image.pixel(20, 6), qRgb(255, 0, 0));
  band->setThickness(1);
  band->setTextColour(nullptr); // the content's text colour then
  image = grabOf(band);
  EXPECT_EQ(image.pixel(20, 4), MuiQt::colour("contentText").rgb());
  EXPECT_NE(image.pixel(20, 3), MuiQt::colour("contentText").rgb());
}

TEST_F(LineImageQt, ANamedImageIsPaintedFromTheCachedPixelsInTheMiddle) {
  MuImage* image = MuImage::create(dialog.get(), "img", "infoframe_error", nullptr);
  const Size size = image->getImageSize();
  ASSERT_EQ(size, Size(16, 16)); // 32 pixels drawn for double density, at 96 dots per inch
  image->setSize({56, 36});
  const QImage shown = grabOf(image);
  const QColor background = window()->palette().color(QPalette::Window);
  // The corners stay background; the picture's pixels sit in the middle.
  EXPECT_EQ(shown.pixelColor(0, 0), background);
  EXPECT_EQ(shown.pixelColor(19, 9), background);
  int painted = 0;
  for (int y = 10; y < 26; ++y)
    for (int x = 20; x < 36; ++x)
      painted += shown.pixelColor(x, y) != background;
  EXPECT_GT(painted, 16 * 16 / 4);
  for (int x = 0; x < 56; ++x)
    EXPECT_EQ(shown.pixelColor(x, 8), background) << x;
}

// Where the display doubles the layout's pixels, an image keeps its place in
// the layout and is painted from pixels drawn for that density.
TEST_F(LineImageQt, AtTwiceTheDevicePixelsImagesAreFinerNotLarger) {
  MuImage* single = MuImage::create(dialog.get(), "single", "user", nullptr);
  xnutil::setDeviceScalePercent(200);
  MuImage* fine = MuImage::create(dialog.get(), "fine", "user", nullptr);
  const QPixmap button = namedPixmap("user", {});
  xnutil::setDeviceScalePercent(100);
  EXPECT_EQ(fine->getImageSize(), single->getImageSize());
  EXPECT_EQ(button.devicePixelRatio(), 2.0);
  EXPECT_EQ(layoutSize(button),
            QSize(single->getImageSize().width, single->getImageSize().height));
  EXPECT_EQ(button.width(), 2 * single->getImageSize().width);
}

} // namespace
} // namespace mui::test
