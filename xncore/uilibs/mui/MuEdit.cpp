#include "mui/MuEdit.h"

#include "mui/EditInput.h"
#include "mui/MuContainer.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace mui {

MuEditFactory muEditFactory = nullptr;

namespace {

// Beyond its caption and least control, an edit is this much wider.
constexpr int extraWidth = 4;

const char* typeWord(int type) {
  switch (type) {
  case MuEdit::Password:
    return "Password";
  case MuEdit::Multiline:
    return "Multiline";
  default:
    return "Text";
  }
}

} // namespace

MuEdit::MuEdit(MuContainer* parent, const char* name, const char* label, int type, int options)
    : MuElement(parent, name, label), editType_(type), options_(options) {}

MuEdit* MuEdit::create(MuContainer* parent, const char* name, const char* label, int type,
                       int options) {
  XN_ASSERT(muEditFactory);
  MuEdit* edit = muEditFactory(parent, name, label, type, options);
  parent->add(edit);
  return edit;
}

void MuEdit::setCue(const char*) {}

void MuEdit::setFilter(Filter* filter) {
  filter_ = filter;
}

int MuEdit::firstLineHeight(int width) {
  LabelWrapper* wrapper = LabelWrapper::of(this);
  const int caption = wrapper ? wrapper->arrange({width, 1}).caption.height() : 0;
  const int line = std::max(lineHeight() + nativeFrameHeight(), caption);
  return std::max(line, Mui::metric(MetricControlHeight));
}

int MuEdit::heightForRows(int rows) {
  return firstLineHeight(INT_MAX) + std::max(rows - 1, 0) * lineHeight();
}

int MuEdit::minWidth(int height) {
  return MuElement::minWidth(height) + extraWidth;
}

int MuEdit::minHeight(int width) {
  if (width < 1)
    return 0;
  int height = firstLineHeight(width);
  if (editType_ == Multiline) {
    // The control's part of the width is all that the caption's column leaves.
    LabelWrapper* wrapper = LabelWrapper::of(this);
    const int control = width - (wrapper ? wrapper->arrange({width, height}).control.tl.x : 0);
    height += (std::max(lineCount(control), 1) - 1) * lineHeight();
  }
  return std::max(minHeight_, height);
}

// A box of many lines takes all the height it is given; a box of one line
// keeps its own, centred beside a caption that may wrap.
int MuEdit::minControlHeight() {
  if (editType_ == Multiline)
    return INT_MAX;
  return std::max(lineHeight() + nativeFrameHeight(), Mui::metric(MetricControlHeight));
}

void MuEdit::setLabelLayout(int labelWidth, int controlWidth) {
  LabelWrapper::setLabelLayoutOf(this, labelWidth, controlWidth);
}

int MuEdit::labelWidth() {
  return LabelWrapper::labelWidthOf(this);
}

const char* MuEdit::typeName() {
  return "edit";
}

plat::String MuEdit::describe() {
  plat::DString text(describeCommon().get());
  const plat::String value = editType_ == Password ? plat::String("<hidden>") : getText();
  text.appendFormat("element Edit\ntype %s\nvalue %s\n", typeWord(editType_),
                    escapeForDescribe(value.orEmpty()).get());
  return text.takeString();
}

bool MuEdit::perform(const char* action, const char* argument) {
  if (std::strcmp(action, "settext") != 0 || !argument || !canPerform(this, false))
    return false;
  setText(argument);
  notify(this, EventChanged);
  return true;
}

bool MuEdit::admitsInput(EditText& text, const EditInput& input) {
  char32_t typed = 0;
  switch (applyEditInput(text, input, &typed)) {
  case EditVerdict::Swallowed:
    return false;
  case EditVerdict::Unfiltered:
    return true;
  case EditVerdict::Filtered:
    break;
  }
  if (!filter_)
    return true;
  const plat::MBuf<char> utf8 = text.toUtf8();
  return filter_->accept(this, utf8.data(), static_cast<int>(typed));
}

} // namespace mui
