#include "mui/headless/MuSuperboxHeadless.h"

#include "mui/Keys.h"
#include "mui/MuDialog.h"
#include "mui/headless/LabelWrapperHeadless.h"
#include "mui/headless/TextModelHeadless.h"

namespace mui {

MuSuperboxHeadless::MuSuperboxHeadless(MuContainer* parent, const char* name, const char* label,
                                       Callback* callback, int popupHeight)
    : MuSuperbox(parent, name, label, callback, popupHeight) {
  MuCommonHeadless::Traits traits;
  traits.focusable = true;
  traits.singleLine = true;
  setCommon(std::make_unique<LabelWrapperHeadless>(this, this, traits));
}

MuSuperbox* MuSuperboxHeadless::make(MuContainer* parent, const char* name, const char* label,
                                     Callback* callback, int popupHeight) {
  return new MuSuperboxHeadless(parent, name, label, callback, popupHeight);
}

LabelWrapperHeadless* MuSuperboxHeadless::peer() {
  return static_cast<LabelWrapperHeadless*>(common());
}

plat::String MuSuperboxHeadless::getText() {
  return plat::String(text_.c_str());
}

void MuSuperboxHeadless::setText(const char* text) {
  text_ = text ? text : "";
  allSelected_ = hasFocus();
}

void MuSuperboxHeadless::setCue(const char* text) {
  cue_ = text ? text : "";
}

int MuSuperboxHeadless::boxHeight() {
  return TextModelHeadless(effectiveStyle(), false).lineHeight();
}

bool MuSuperboxHeadless::takesInput() {
  return isOperable() && isShown();
}

void MuSuperboxHeadless::type(const char* text) {
  if (!takesInput())
    return;
  if (allSelected_)
    text_.clear();
  allSelected_ = false;
  text_ += text;
  textChangedByUser();
}

void MuSuperboxHeadless::pressKey(int keysym) {
  if (!takesInput() || filterKey(keysym))
    return;
  MuDialog* dialog = rootDialog();
  if (normaliseKey(keysym) == KeyTab)
    loseFocus();
  else if (dialog)
    dialog->activateByKey(keysym);
}

void MuSuperboxHeadless::pressDropDown() {
  if (takesInput())
    dropDownKey();
}

bool MuSuperboxHeadless::pressBox() {
  const bool swallowed = dismisser().pressed(PopupDismisser::OnOwner);
  if (!swallowed && takesInput())
    setFocus();
  return !swallowed;
}

void MuSuperboxHeadless::pressInPopup() {
  dismisser().pressed(PopupDismisser::InPopup);
}

void MuSuperboxHeadless::pressElsewhere() {
  dismisser().pressed(PopupDismisser::Elsewhere);
}

void MuSuperboxHeadless::loseFocus() {
  if (peer()->hasFocus())
    peer()->focusNext();
  dismisser().dismiss();
}

} // namespace mui
