#include "mui/headless/MuChoiceHeadless.h"

#include "mui/headless/LabelWrapperHeadless.h"
#include "mui/headless/TextModelHeadless.h"
#include "plat/DString.h"

#include <cstring>

namespace mui {

MuChoiceHeadless::MuChoiceHeadless(MuContainer* parent, const char* name, const char* label,
                                   int options)
    : MuChoice(parent, name, label, options) {
  MuCommonHeadless::Traits traits;
  traits.focusable = true;
  setCommon(std::make_unique<LabelWrapperHeadless>(this, this, traits));
}

MuChoice* MuChoiceHeadless::make(MuContainer* parent, const char* name, const char* label,
                                 int options) {
  return new MuChoiceHeadless(parent, name, label, options);
}

LabelWrapperHeadless* MuChoiceHeadless::peer() {
  return static_cast<LabelWrapperHeadless*>(common());
}

void MuChoiceHeadless::selectIndex(int index) {
  const bool changed = index != selected_;
  selected_ = index;
  if (index >= 0)
    editText_ = plat::String(textAt(index));
  if (changed)
    selectionChanged();
}

void MuChoiceHeadless::setValue(int id) {
  peer()->record(plat::strFormat("setValue %d", id).get());
  selected_ = indexOf(id);
  editText_ = plat::String(selected_ >= 0 ? textAt(selected_) : "");
}

int MuChoiceHeadless::getValue() {
  return selected_ < 0 ? -1 : idAt(selected_);
}

int MuChoiceHeadless::itemCount() {
  return keptItemCount();
}

void MuChoiceHeadless::setText(const char* text) {
  peer()->record(std::string("setText ") + (text ? text : ""));
  if (isEditable()) {
    editText_ = plat::String(text ? text : "");
    return;
  }
  for (int i = 0, n = itemCount(); i < n; ++i) {
    if (std::strcmp(textAt(i), text ? text : "") == 0) {
      selected_ = i;
      editText_ = plat::String(textAt(i));
      return;
    }
  }
}

plat::String MuChoiceHeadless::getText() {
  return plat::String(editText_.orEmpty());
}

void MuChoiceHeadless::addItem(int id, const char* text) {
  peer()->record(plat::strFormat("addItem %d %s", id, text ? text : "").get());
  itemAdded(static_cast<std::size_t>(itemCount()), id, text);
}

void MuChoiceHeadless::removeItem(int id) {
  const int index = indexOf(id);
  if (index < 0)
    return;
  const Removing removing(this);
  itemRemoved(index);
  // The native list loses its selection with the selected item.
  if (index == selected_)
    selectIndex(-1);
  else if (index < selected_)
    --selected_;
}

void MuChoiceHeadless::removeAll() {
  const Removing removing(this);
  itemsRemoved();
  selectIndex(-1);
}

bool MuChoiceHeadless::pick(int id) {
  const int index = indexOf(id);
  if (!peer()->acceptsInput() || index < 0)
    return false;
  selectIndex(index);
  return true;
}

bool MuChoiceHeadless::type(const char* text) {
  if (!peer()->acceptsInput() || !isEditable())
    return false;
  editText_ = plat::String(text);
  return true;
}

int MuChoiceHeadless::textWidth(const char* text) {
  return TextModelHeadless(effectiveStyle(), false).width(text);
}

int MuChoiceHeadless::lineHeight() {
  return TextModelHeadless(effectiveStyle(), false).lineHeight();
}

} // namespace mui
