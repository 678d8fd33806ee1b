#include "oxnpermissionscreator/PermissionsDialog.h"

#include "oxnpermissionscreator/EntryFrame.h"
#include "oxnpermissionscreator/TextKeys.h"

#include "loc/Localize.h"
#include "mui/MuAboutDialog.h"
#include "mui/MuButton.h"
#include "mui/MuChoice.h"
#include "mui/MuEdit.h"
#include "mui/MuFrame.h"
#include "mui/MuImage.h"
#include "mui/MuLayout.h"
#include "mui/MuScroll.h"
#include "mui/MuSpacer.h"
#include "mui/MuStatic.h"
#include "mui/Mui.h"
#include "os/AppInfo.h"
#include "os/AppLoop.h"
#include "plat/ConfigParameter.h"
#include "product/ProductInfo.h"
#include "smisc/PermissionsParameter.h"

#include <algorithm>
#include <climits>

namespace app {

namespace {

using mui::Mui;
using mui::MuLayout;

// Sizes in units.
constexpr int dialogWidth = 1160;
constexpr int dialogHeight = 1320;
constexpr int sectionGap = 20;

// Ids of the items of the scheme choice.
constexpr int systemSchemeId = 0;
constexpr int cloudSsoSchemeId = 1;

// A spacer that takes the spare room of its row.
void addExpander(MuLayout* row) {
  row->setChildLayout(mui::MuSpacer::create(row, 0, 0), MuLayout::Weighted, 1);
}

void addGap(MuLayout* column) {
  mui::MuSpacer::create(column, 0, Mui::toPixels(sectionGap));
}

// Both buttons get the greater natural width, so that the pair looks like one.
void makeEquallyWide(MuLayout* row, mui::MuButton* first, mui::MuButton* second) {
  auto naturalWidth = [](mui::MuButton* button) {
    return button->minWidth(button->minHeight(INT_MAX));
  };
  const int width = std::max(naturalWidth(first), naturalWidth(second));
  row->setChildLayout(first, MuLayout::Fixed, width);
  row->setChildLayout(second, MuLayout::Fixed, width);
}

} // namespace

PermissionsDialog::PermissionsDialog() {
  const mui::Size size = Mui::textToPixels(mui::Size{dialogWidth, dialogHeight});
  dialog_.reset(mui::MuDialog::create(applicationName, os::getDisplayName(false), &size, 0, nullptr,
                                      nullptr));
  mui::MuAboutDialog::setTexts(product::versionLine, product::aboutText);
  aboutDialog_ = std::make_unique<mui::MuAboutDialog>(dialog_.get(), nullptr);
  buildFrame();
  buildTextArea();
  dialog_->setButton(mui::MuDialog::DefaultButton, refreshText_);
  dialog_->setActivateCallback(this);
  permissionString_->addObserver(this);
  permissionString_->setText(smisc::permissionsParameter.getValueString().get());
  dialog_->addObserver(this);
}

PermissionsDialog::~PermissionsDialog() = default;

// The whole form scrolls when the window is too small for it. The frame
// inside the scroll takes over the dialog's margin, so that the scroll
// reaches the window's edges.
void PermissionsDialog::buildFrame() {
  scroll_ = mui::MuScroll::create(dialog_.get(), "s1", mui::MuScroll::VerticalBar);
  mui::MuFrame* frame = mui::MuFrame::create(scroll_, "f1", nullptr, mui::MuFrame::Plain);
  frame->setMargin({dialog_->margin(), dialog_->margin()});
  dialog_->setMargin(0);
  main_ = MuLayout::create(frame, "main", MuLayout::Vertical);
  schemeChoice_ = mui::MuChoice::create(main_, "schemeChoice", XN_TEXT(textkey::scheme_label));
  schemeChoice_->addItem(systemSchemeId, XN_TEXT(textkey::scheme_system));
  schemeChoice_->addItem(cloudSsoSchemeId, XN_TEXT(textkey::scheme_cloud_sso));
  schemeChoice_->setValue(systemSchemeId);
}

// From the first gap down: the two buttons between their arrows, the
// parameter's caption, its edit box, and the About link at the right.
void PermissionsDialog::buildTextArea() {
  addGap(main_);
  MuLayout* buttons = MuLayout::create(main_, "tl", MuLayout::Horizontal);
  addExpander(buttons);
  mui::MuImage::create(buttons, "downarrow", "entrydown", nullptr);
  refreshText_ =
      mui::MuButton::create(buttons, "refreshtext", XN_TEXT(textkey::update_text_button));
  refreshUi_ = mui::MuButton::create(buttons, "refreshui", XN_TEXT(textkey::update_ui_button));
  mui::MuImage::create(buttons, "uparrow", "entryup", nullptr);
  addExpander(buttons);
  makeEquallyWide(buttons, refreshText_, refreshUi_);
  addGap(main_);

  mui::MuStatic::create(main_, "label", XN_TEXT(textkey::edit_permissions), mui::MuStatic::Text);
  permissionString_ = mui::MuEdit::create(main_, "permissionstring", nullptr);

  MuLayout* links = MuLayout::create(main_, "layout", MuLayout::Horizontal);
  addExpander(links);
  aboutLink_ = mui::MuButton::create(links, "aboutLink", XN_TEXT(textkey::about_link),
                                     mui::MuButton::Hyperlink);
  links->setChildLayout(aboutLink_, MuLayout::Natural | MuLayout::AtEnd, 0);
}

void PermissionsDialog::open() {
  dialog_->setVisible(true);
}

void PermissionsDialog::handleEvent(mui::MuElement* source, int event) {
  MuObserver::handleEvent(source, event);
}

void PermissionsDialog::clicked(mui::MuElement* source) {
  if (source == refreshUi_)
    applyText();
  else if (source == refreshText_)
    showParameter();
  else if (source == aboutLink_)
    aboutDialog_->show();
}

void PermissionsDialog::applyText() {
  smisc::permissionsParameter.setFromString(permissionString_->getText().get(),
                                            plat::priorityPreference);
}

void PermissionsDialog::showParameter() {
  permissionString_->setText(smisc::permissionsParameter.getValueString().get());
}

void PermissionsDialog::dialogClosed(mui::MuDialog*) {
  os::AppLoop::quit(0);
}

bool PermissionsDialog::activate(int which, mui::MuDialog*) {
  if (which != mui::MuDialog::DefaultButton || !permissionString_->hasFocus())
    return false;
  clicked(refreshUi_);
  return true;
}

} // namespace app
