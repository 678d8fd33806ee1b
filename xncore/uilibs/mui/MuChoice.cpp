#include "mui/MuChoice.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstring>

namespace mui {

MuChoiceFactory muChoiceFactory = nullptr;

namespace {

// Without a theme to ask, the drop-down's arrow and frame take this room, in units.
constexpr int chromeWidthUnits = 54;
constexpr int chromeHeightUnits = 12;

} // namespace

MuChoice::MuChoice(MuContainer* parent, const char* name, const char* label, int options)
    : MuElement(parent, name, label), options_(options) {}

MuChoice* MuChoice::create(MuContainer* parent, const char* name, const char* label, int options) {
  XN_ASSERT(muChoiceFactory);
  MuChoice* choice = muChoiceFactory(parent, name, label, options);
  parent->add(choice);
  return choice;
}

int MuChoice::indexOf(int id) const {
  const auto found = std::find(ids_.begin(), ids_.end(), id);
  return found == ids_.end() ? -1 : static_cast<int>(found - ids_.begin());
}

void MuChoice::itemAdded(std::size_t idx, int id, const char* text) {
  // Items are never sorted: the native list appends.
  const std::vector<int>& ids = ids_;
  XN_ASSERT(idx == ids.size());
  ids_.push_back(id);
  texts_.emplace_back(text ? text : "");
  MeasurePass::invalidate();
}

void MuChoice::itemRemoved(int index) {
  ids_.erase(ids_.begin() + index);
  texts_.erase(texts_.begin() + index);
  MeasurePass::invalidate();
}

void MuChoice::itemsRemoved() {
  ids_.clear();
  texts_.clear();
  MeasurePass::invalidate();
}

void MuChoice::selectionChanged() {
  if (!removing_)
    notify(this, EventChanged);
}

Size MuChoice::dropDownChrome() {
  return {Mui::toPixels(chromeWidthUnits), Mui::toPixels(chromeHeightUnits)};
}

int MuChoice::minControlWidth() {
  int widest = 0;
  for (const plat::String& text : texts_)
    widest = std::max(widest, textWidth(text.get()));
  return widest + dropDownChrome().width;
}

int MuChoice::minControlHeight() {
  return lineHeight() + dropDownChrome().height;
}

void MuChoice::setLabelLayout(int labelWidth, int controlWidth) {
  LabelWrapper::setLabelLayoutOf(this, labelWidth, controlWidth);
}

int MuChoice::labelWidth() {
  return LabelWrapper::labelWidthOf(this);
}

const char* MuChoice::typeName() {
  return "choice";
}

plat::String MuChoice::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Choice\nvalue %d\nvaluestr %s\n", getValue(),
                    escapeForDescribe(getText().orEmpty()).get());
  return text.takeString();
}

plat::String MuChoice::describeItems() {
  plat::DString text("");
  for (std::size_t i = 0; i < ids_.size(); ++i)
    text.appendFormat("%d:%s\n", ids_[i], texts_[i].get());
  return text.takeString();
}

bool MuChoice::perform(const char* action, const char* argument) {
  if (std::strcmp(action, "click") == 0) {
    if (!canPerform(this, true))
      return false;
    notify(this, EventClicked);
    return true;
  }
  const bool select = std::strcmp(action, "select") == 0;
  if ((!select && std::strcmp(action, "settext") != 0) || !argument || !canPerform(this, false))
    return false;
  if (select)
    setValue(decimalArgument(argument));
  else
    setText(argument);
  notify(this, EventChanged);
  return true;
}

} // namespace mui
