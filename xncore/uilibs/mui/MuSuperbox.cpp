#include "mui/MuSuperbox.h"

#include "mui/Keys.h"
#include "mui/MuDialog.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstring>

namespace mui {

MuSuperboxFactory muSuperboxFactory = nullptr;

namespace {

// Room beside the text that a box keeps, as an edit does.
constexpr int extraWidth = 4;

// "<dialog>_<path with '_' for '.'>_popup": the popup's id names its box.
plat::String popupId(MuElement* box) {
  const MuDialog* root = box->rootDialog();
  plat::String path = box->fullName();
  plat::DString id;
  id.appendFormat("%s_%s_popup", root && root->name() ? root->name() : "", path.orEmpty());
  plat::String text = id.takeString();
  std::replace(text.data(), text.data() + std::strlen(text.get()), '.', '_');
  return text;
}

} // namespace

MuSuperbox::MuSuperbox(MuContainer* parent, const char* name, const char* label, Callback* callback,
                       int popupHeight)
    : MuElement(parent, name, label), callback_(callback), popup_([&] {
        const Size size{1, popupHeight};
        return MuDialog::create(popupId(this).get(), "", &size, MuDialog::Popup, rootDialog(),
                                nullptr);
      }()),
      dismisser_(popup_.get()) {
  popup_->setMargin(0);
}

MuSuperbox::~MuSuperbox() = default;

MuSuperbox* MuSuperbox::create(MuContainer* parent, const char* name, const char* label,
                               Callback* callback, int popupHeight) {
  XN_ASSERT(muSuperboxFactory);
  MuSuperbox* superbox = muSuperboxFactory(parent, name, label, callback, popupHeight);
  parent->add(superbox);
  return superbox;
}

MuElement* MuSuperbox::childAt(int index) {
  return index == 0 ? this : nullptr;
}

bool MuSuperbox::isPopupShown() {
  return popup_->isVisible();
}

void MuSuperbox::showPopup(bool show) {
  if (!show) {
    popup_->setVisible(false);
    return;
  }
  const Rect edit = getEditRect();
  MuDialog* root = rootDialog();
  const Point origin = root ? root->getScreenPosition() : Point();
  popup_->setPosition({origin.x + edit.tl.x, origin.y + edit.br.y});
  popup_->setSize({edit.width(), popup_->getSize().height});
  popup_->setVisible(true);
}

void MuSuperbox::setCue(const char*) {}

// The text box's place in the wrapper, moved by where the wrapper stands in the dialog.
Rect MuSuperbox::getEditRect() {
  LabelWrapper* wrapper = LabelWrapper::of(this);
  Rect box = wrapper ? wrapper->arrange(getSize()).control : Rect::at({0, 0}, getSize());
  MuDialog* root = rootDialog();
  if (!root)
    return box;
  return box.translate(getScreenPosition().translate(root->getScreenPosition().negate()));
}

bool MuSuperbox::filterKey(int keysym) {
  const int key = normaliseKey(keysym);
  if (callback_ && callback_->keyPressed(this, key))
    return true;
  if (key != KeyTab && key != KeyReturn && key != KeyEscape)
    return false;
  const bool wasShown = isPopupShown();
  showPopup(false);
  // A first Escape only closes the popup; the next reaches the dialog.
  return key == KeyEscape && wasShown;
}

void MuSuperbox::dropDownKey() {
  if (isPopupShown())
    showPopup(false);
  else
    notify(this, EventClicked);
}

int MuSuperbox::minWidth(int height) {
  return MuElement::minWidth(height) + extraWidth;
}

int MuSuperbox::minControlHeight() {
  return std::max(boxHeight(), Mui::metric(MetricControlHeight));
}

void MuSuperbox::setLabelLayout(int labelWidth, int controlWidth) {
  LabelWrapper::setLabelLayoutOf(this, labelWidth, controlWidth);
}

int MuSuperbox::labelWidth() {
  return LabelWrapper::labelWidthOf(this);
}

const char* MuSuperbox::typeName() {
  return "superbox";
}

plat::String MuSuperbox::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Superbox\nvalue %s\npopup-dialogid %s\n",
                    escapeForDescribe(getText().orEmpty()).get(), popup_->name());
  return text.takeString();
}

bool MuSuperbox::perform(const char* action, const char* argument) {
  if (!canPerform(this, false))
    return false;
  if (std::strcmp(action, "settext") == 0 && argument) {
    setText(argument);
    notify(this, EventChanged);
    return true;
  }
  if (std::strcmp(action, "pressenter") == 0) {
    filterKey(KeyReturn);
    return true;
  }
  return false;
}

} // namespace mui
