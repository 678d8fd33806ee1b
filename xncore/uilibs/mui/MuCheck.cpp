#include "mui/MuCheck.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstring>

namespace mui {

MuCheckFactory muCheckFactory = nullptr;

namespace {

// The side of the box, in units; half a "0" separates it from the label.
constexpr int boxUnits = 26;
constexpr int imageGapUnits = 6;

} // namespace

void MuCheck::Group::changed(MuElement* source) {
  for (MuCheck* member : members_)
    member->setValue(member == source);
}

void MuCheck::Group::join(MuCheck* member) {
  members_.push_back(member);
  member->addObserver(this);
}

void MuCheck::Group::leave(MuCheck* member) {
  member->removeObserver(this);
  members_.erase(std::remove(members_.begin(), members_.end(), member), members_.end());
  if (members_.empty())
    delete this;
}

MuCheck::MuCheck(MuContainer* parent, const char* name, const char* label, int type,
                 MuCheck* groupPeer, const char* imageBase)
    : MuElement(parent, name, label), checkType_(type), imageBase_(imageBase) {
  if (groupPeer)
    group_ = groupPeer->group_;
  else if (type == Radio)
    group_ = new Group;
  if (group_)
    group_->join(this);
}

MuCheck::~MuCheck() {
  if (group_)
    group_->leave(this);
}

MuCheck* MuCheck::create(MuContainer* parent, const char* name, const char* label, int type,
                         MuCheck* groupPeer, const char* imageBase) {
  XN_ASSERT(muCheckFactory);
  MuCheck* check = muCheckFactory(parent, name, label, type, groupPeer, imageBase);
  parent->add(check);
  return check;
}

void MuCheck::setLabel(const char* label) {
  setLabelText(label);
  MeasurePass::invalidate();
}

MuCheck::State MuCheck::state() {
  return isIndeterminate() ? Indeterminate : getValue() ? Set : Unset;
}

plat::String MuCheck::imageName(int state) const {
  static const char* const prefixes[] = {"off", "on", "ind"};
  if (imageBase_.isNull())
    return plat::String();
  return plat::strFormat("%s-%s", prefixes[state], imageBase_.get());
}

void MuCheck::clickedByUser() {
  setValue(state() == Unset);
  notify(this, EventChanged);
}

Size MuCheck::boxSize() {
  if (!imageBase_.isNull()) {
    const Size image = imageSize();
    return {Mui::toPixels(imageGapUnits) + image.width, image.height};
  }
  const Size native = nativeBoxSize();
  return {std::max(Mui::toPixels(boxUnits) + zeroWidth() / 2, native.width),
          std::max(Mui::toPixels(boxUnits), native.height)};
}

int MuCheck::markWidth() {
  if (!imageBase_.isNull())
    return imageSize().width;
  return std::max(Mui::toPixels(boxUnits), nativeMarkWidth());
}

int MuCheck::minWidth(int height) {
  const char* text = label();
  if (!text || !*text)
    return markWidth();
  return MuElement::minWidth(height) + boxSize().width;
}

int MuCheck::minHeight(int width) {
  const Size box = boxSize();
  return std::max(MuElement::minHeight(width - box.width), box.height);
}

const char* MuCheck::typeName() {
  return "check";
}

plat::String MuCheck::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Check\ntype %s\nvalue %d\nindeterminate %d\n",
                    checkType_ == Radio ? "Radio" : "Normal", getValue() ? 1 : 0,
                    isIndeterminate() ? 1 : 0);
  return text.takeString();
}

bool MuCheck::perform(const char* action, const char* argument) {
  if (std::strcmp(action, "click") != 0 || !argument || !canPerform(this, true))
    return false;
  setValue(decimalArgument(argument) != 0);
  notify(this, EventChanged);
  return true;
}

} // namespace mui
