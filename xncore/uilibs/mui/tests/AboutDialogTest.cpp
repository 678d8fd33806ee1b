// The About box on the headless binding: its form, its texts, the keys and
// the button that close it, and the picture loaded again on a theme change.
#include "HeadlessForm.h"

#include "mui/Keys.h"
#include "mui/MuAboutDialog.h"
#include "mui/MuImage.h"
#include "mui/MuText.h"
#include "mui/headless/MuDialogHeadless.h"
#include "os/AppInfo.h"

#include <gmock/gmock.h>

#include <string>

namespace mui::test {
namespace {

class AboutBox : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    os::setAppInfo("oxnpermissionscreator", "Maker", "oxn", nullptr, "Permissions Creator");
  }
  void TearDown() override {
    MuAboutDialog::setTexts(nullptr, nullptr);
    HeadlessForm::TearDown();
  }
  static MuDialogHeadless* boxOf(MuAboutDialog& about) {
    return static_cast<MuDialogHeadless*>(about.getDialog());
  }
};

TEST_F(AboutBox, ThePictureStandsBesideTheTextOverAnOkButton) {
  MuAboutDialog about(dialog.get(), nullptr);
  MuDialogHeadless* box = boxOf(about);
  EXPECT_STREQ(box->name(), "aboutdlg");
  EXPECT_EQ(box->title(), "Permissions Creator - About");
  EXPECT_EQ(box->dialogStyle(), 67);
  EXPECT_EQ(box->parentWindow(), dialog->getWindow());
  auto* image = dynamic_cast<MuImage*>(box->find("img"));
  ASSERT_NE(image, nullptr);
  EXPECT_STREQ(image->imageName(), "oxnpermissionscreator");
  const int side = Mui::toPixels(96);
  EXPECT_EQ(image->getImageSize(), Size(side, side));
  auto* text = dynamic_cast<MuText*>(box->find("text"));
  ASSERT_NE(text, nullptr);
  EXPECT_STREQ(text->label(), "<div><b>Permissions Creator</b></div><div></div>");
  MuElement* ok = box->find("buttons.ok");
  ASSERT_NE(ok, nullptr);
  EXPECT_EQ(box->button(MuDialog::DefaultButton), ok);
  EXPECT_EQ(box->button(MuDialog::CancelButton), ok);

  about.show();
  EXPECT_EQ(box->getSize().width, Mui::textToPixels(950));
  EXPECT_GE(text->getPosition().x, image->getPosition().x + side + Mui::metric(MetricDialogMargin));
  EXPECT_LT(ok->getPosition().y + ok->getSize().height, box->getSize().height);
}

TEST_F(AboutBox, OkReturnAndEscapeCloseTheBox) {
  MuAboutDialog about(dialog.get(), nullptr);
  MuDialogHeadless* box = boxOf(about);
  for (int key : {KeyReturn, KeyEscape}) {
    about.show();
    EXPECT_TRUE(box->pressKey(key));
    EXPECT_FALSE(box->isVisible()) << key;
  }
  about.show();
  EXPECT_TRUE(box->find("buttons.ok")->perform("click", nullptr));
  EXPECT_FALSE(box->isVisible());
}

TEST_F(AboutBox, TheProductsTextsAndAPictureOfOnesOwn) {
  MuAboutDialog::setTexts([] { return plat::String("Product 7.19 <x64>"); },
                          [] { return plat::String("<div>&copy; Maker</div>"); });
  MuAboutDialog about(nullptr, nullptr, "user");
  auto* text = dynamic_cast<MuText*>(about.getDialog()->find("text"));
  EXPECT_STREQ(text->label(),
               "<div><b>Product 7.19 &lt;x64&gt;</b></div><div><div>&copy; Maker</div></div>");
  MuElement* image = about.getDialog()->find("img");
  EXPECT_STREQ(static_cast<MuImage*>(image)->imageName(), "user");
  MuCommonHeadless::of(image)->clearCalls();
  about.getDialog()->notify(about.getDialog(), EventThemeChanged);
  EXPECT_THAT(MuCommonHeadless::of(image)->calls(),
              testing::Contains(testing::StartsWith("showImage")));
}

} // namespace
} // namespace mui::test
