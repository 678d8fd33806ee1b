#include "oxnpermissionscreator/PermissionsDialog.h"

#include "oxnpermissionscreator/EntryFrame.h"
#include "oxnpermissionscreator/TextKeys.h"

#include "cloudAuth/PermissionsSchemeCloudSso.h"
#include "loc/Localize.h"
#include "mui/MuAboutDialog.h"
#include "mui/MuButton.h"
#include "mui/MuChoice.h"
#include "mui/MuEdit.h"
#include "mui/MuFrame.h"
#include "mui/MuImage.h"
#include "mui/MuLayout.h"
#include "mui/MuList.h"
#include "mui/MuScroll.h"
#include "mui/MuSpacer.h"
#include "mui/MuStatic.h"
#include "mui/Mui.h"
#include "os/AppInfo.h"
#include "os/AppLoop.h"
#include "plat/ConfigParameter.h"
#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "product/ProductInfo.h"
#include "smisc/PermissionsParameter.h"
#include "smisc/PermissionsSchemeNtLogon.h"
#include "sysauth/SecurityPrincipal.h"
#include "sysauth/SecurityPrincipalList.h"
#include "xnauth/PermissionDefn.h"

#include <algorithm>
#include <climits>
#include <cstring>

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

// The letters whose rows the editor's form makes itself.
constexpr const char* formLetters = "skpc";

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
  createForm(main_);
  main_->setChildLayout(split_, MuLayout::Weighted, 1);
  for (const xnauth::PermissionDefn& definition : xnauth::getPermissionDefns()) {
    if (!std::strchr(formLetters, definition.code))
      addPermissionRow(definition.code);
  }
  ntLogonScheme_ = new smisc::PermissionsSchemeNtLogon(this);
  addScheme("System", ntLogonScheme_);
  cloudSsoScheme_ = new cloudAuth::PermissionsSchemeCloudSso(this, "Permissions");
  addScheme("CloudSso", cloudSsoScheme_);
  sysauth::nameResolver = &nameResolver_;
  buildTextArea();
  dialog_->setButton(mui::MuDialog::DefaultButton, refreshText_);
  dialog_->setActivateCallback(this);
  permissionString_->addObserver(this);
  permissionString_->setText(smisc::permissionsParameter.getValueString().get());
  // Events walk up the tree, so this one registration hears the whole form.
  dialog_->addObserver(this);
}

// The schemes, which the editor deletes, outlive the window: an add dialog
// that was left open goes with its scheme.
PermissionsDialog::~PermissionsDialog() {
  sysauth::nameResolver = nullptr;
  aboutDialog_.reset();
  dialog_.reset();
}

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

// Under the form: the two buttons between their arrows, which point the way
// each one carries the content, the parameter's caption, its edit box, and
// the About link at the right.
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
  // The system scheme is in force at the start, whatever the text says.
  schemeChoice_->setValue(systemSchemeId);
  fillList([this] { setScheme(ntLogonScheme_); });
  showSettings();
  clearBoxes(false);
}

plat::Configuration* PermissionsDialog::getConfiguration() {
  return &plat::Configuration::global();
}

void PermissionsDialog::insertEntry(int index, const char* text, const char* imageName) {
  lastInserted_ = index;
  clearBoxes(true);
  PermissionsEditor::insertEntry(index, text, imageName);
  // While a scheme fills the list, only the last selection can show, and
  // each one would lay out the whole list again.
  if (fillingList_)
    insertedUnselected_ = true;
  else
    selectInserted();
}

void PermissionsDialog::selectInserted() {
  insertedUnselected_ = false;
  scheme_->selectionChanged(lastInserted_);
  list_->setSelection(lastInserted_);
}

void PermissionsDialog::selectEntry(int index) {
  insertedUnselected_ = false;
  PermissionsEditor::selectEntry(index);
}

// The selection of the first row raises no event: the boxes stay disabled,
// and the row that shows as selected isn't the one the editor selected.
void PermissionsDialog::removeEntry(int index) {
  PermissionsEditor::removeEntry(index);
  refreshText_->setEnabled(true);
  showSettings();
  clearBoxes(false);
  if (list_->rowCount() > 0) {
    lastInserted_ = 0;
    list_->setSelection(0);
  }
}

void PermissionsDialog::handleEvent(mui::MuElement* source, int event) {
  MuObserver::handleEvent(source, event);
  PermissionsEditor::handleEvent(source, event);
  if (event == mui::EventChanged)
    scroll_->relayout();
}

void PermissionsDialog::changed(mui::MuElement* source) {
  if (source != schemeChoice_) {
    PermissionsEditor::changed(source);
    return;
  }
  // The new scheme reads the same parameter, in its own form; the edit box
  // keeps its text.
  sui::PermissionsScheme* scheme = schemeChoice_->getValue() == cloudSsoSchemeId
                                       ? static_cast<sui::PermissionsScheme*>(cloudSsoScheme_)
                                       : static_cast<sui::PermissionsScheme*>(ntLogonScheme_);
  fillList([this, scheme] { setScheme(scheme); });
  showSettings();
  clearBoxes(false);
  relayoutMain();
}

void PermissionsDialog::clicked(mui::MuElement* source) {
  PermissionsEditor::clicked(source);
  if (source == refreshUi_)
    applyText();
  else if (source == refreshText_)
    showParameter();
  else if (source == aboutLink_)
    aboutDialog_->show();
}

// The text is stored whether or not it is valid. The system scheme answers a
// bad text with an empty list; the single sign-on scheme lets the parse
// failure through. Since the scheme inserts in list order, the entry that
// ends up selected is the last one.
void PermissionsDialog::applyText() {
  smisc::permissionsParameter.setFromString(permissionString_->getText().get(),
                                            plat::priorityPreference);
  list_->removeAll();
  fillList([this] { scheme_->activate(); });
  if (list_->rowCount() > 0) {
    selectEntry(lastInserted_);
    scheme_->selectionChanged(lastInserted_);
  }
  relayoutMain();
}

// Reading the written text back into an access list runs the account check
// again, for its log lines; the list itself is not wanted, and a text that
// doesn't read as one (single sign-on entries) is no failure here.
void PermissionsDialog::showParameter() {
  scheme_->permissionsChanged(0, 0);
  const plat::String text = smisc::permissionsParameter.getValueString();
  try {
    sysauth::SecurityPrincipalList().parse(text.get(), false);
  } catch (const plat::Exception&) {
  }
  permissionString_->setText(text.get());
}

void PermissionsDialog::showSettings() {
  settings_->setVisible(true);
  settingsLayout_->setVisible(true);
  choice_->setVisible(true);
  permset_->setVisible(true);
}

void PermissionsDialog::clearBoxes(bool keepHelp) {
  for (const xnauth::PermissionDefn& definition : xnauth::getPermissionDefns()) {
    const char code[2] = {definition.code, '\0'};
    mui::MuElement* row = permcustom_->find(code);
    if (!row)
      continue;
    row->find("allow.check")->setEnabled(false);
    row->find("deny.check")->setEnabled(false);
  }
  if (!keepHelp)
    customHelp_->setVisible(false);
  if (!fillingList_)
    relayoutMain();
}

// A layout after each entry would make a long list quadratic; the result of
// one at the end is the same.
void PermissionsDialog::fillList(const std::function<void()>& fill) {
  fillingList_ = true;
  try {
    fill();
  } catch (...) {
    finishFilling();
    throw;
  }
  finishFilling();
}

void PermissionsDialog::finishFilling() {
  fillingList_ = false;
  if (insertedUnselected_)
    selectInserted();
  relayoutMain();
}

void PermissionsDialog::relayoutMain() {
  main_->relayout();
  main_->parent()->relayout();
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
