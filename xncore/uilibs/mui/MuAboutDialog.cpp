#include "mui/MuAboutDialog.h"

#include "loc/Localize.h"
#include "mui/MuButton.h"
#include "mui/MuDialog.h"
#include "mui/MuImage.h"
#include "mui/MuLayout.h"
#include "mui/MuText.h"
#include "mui/Mui.h"
#include "mui/TextKeys.h"
#include "os/AppInfo.h"
#include "plat/DString.h"
#include "plat/MarkupEscape.h"

namespace mui {

namespace {

MuAboutDialog::TextSource productLineSource = nullptr;
MuAboutDialog::TextSource bodySource = nullptr;

constexpr int aboutStyle = MuDialog::FixedSize | MuDialog::NoHide | MuDialog::FitHeight;
// The picture's side, in units.
constexpr int imageUnits = 96;

// The product line in bold, then the body.
plat::String aboutMarkup() {
  const plat::String line =
      productLineSource ? productLineSource() : plat::String(os::getDisplayName(true));
  const plat::String body = bodySource ? bodySource() : plat::String("");
  plat::DString markup;
  markup.appendFormat("<div><b>%s</b></div><div>%s</div>", plat::escapeMarkup(line.orEmpty()).get(),
                      body.orEmpty());
  return markup.takeString();
}

} // namespace

void MuAboutDialog::setTexts(TextSource productLine, TextSource body) {
  productLineSource = productLine;
  bodySource = body;
}

MuAboutDialog::Registration::Registration(MuDialog* dialog, MuObserver* observer)
    : dialog_(dialog), observer_(observer) {
  dialog_->addObserver(observer_);
}

MuAboutDialog::Registration::~Registration() {
  dialog_->removeObserver(observer_);
}

MuAboutDialog::MuAboutDialog(MuDialog* parentDialog, os::Window* parentWindow,
                             const char* imageName)
    : dialog_([&] {
        const Size size = Mui::textToPixels(Size{950, 100});
        return MuDialog::create("aboutdlg", nullptr, &size, aboutStyle, parentDialog, parentWindow);
      }()),
      column_(MuLayout::create(dialog_.get(), nullptr, MuLayout::Vertical)),
      row_(MuLayout::create(column_, nullptr, MuLayout::Horizontal)),
      imageName_(imageName ? imageName : os::getApp(true)), image_([this] {
        const Size size = imageSize();
        return MuImage::create(row_, "img", imageName_.get(), &size);
      }()),
      text_(MuText::create(row_, "text", aboutMarkup().get(), &links_, false)),
      buttonBar_(std::make_unique<MuButtonBar>(column_, MuButtonBar::Ok, true)),
      registration_(dialog_.get(), this) {
  dialog_->setTitle(XN_FORMAT(textkey::mui_aboutdlg_title_fmt, os::getDisplayName(true)).get());
  row_->setSpacing(Mui::metric(MetricDialogMargin));
  row_->setChildLayout(image_, MuLayout::AtStart, 1);
  row_->setChildLayout(text_, MuLayout::Weighted, 1);
  // Escape closes the box as OK does.
  dialog_->setButton(MuDialog::CancelButton, buttonBar_->button(MuButtonBar::Ok));
}

MuAboutDialog::~MuAboutDialog() = default;

Size MuAboutDialog::imageSize() const {
  const int side = Mui::toPixels(imageUnits);
  return {side, side};
}

void MuAboutDialog::show() {
  dialog_->setVisible(true);
}

void MuAboutDialog::handleEvent(MuElement* source, int event) {
  if (event == EventClicked && buttonBar_->buttonId(source)) {
    dialog_->setVisible(false);
  } else if (event == EventThemeChanged) {
    const Size size = imageSize();
    image_->setImage(imageName_.get(), &size);
  }
}

} // namespace mui
