#include "mui/headless/MuEditHeadless.h"

#include "mui/EditInput.h"
#include "mui/Keys.h"
#include "mui/MuDialog.h"
#include "mui/headless/LabelWrapperHeadless.h"
#include "mui/headless/TextModelHeadless.h"
#include "plat/utf8.h"

namespace mui {

MuEditHeadless::MuEditHeadless(MuContainer* parent, const char* name, const char* label, int type,
                               int options)
    : MuEdit(parent, name, label, type, options), text_(type == Password) {
  MuCommonHeadless::Traits traits;
  traits.focusable = true;
  setCommon(std::make_unique<LabelWrapperHeadless>(this, this, traits));
}

MuEdit* MuEditHeadless::make(MuContainer* parent, const char* name, const char* label, int type,
                             int options) {
  return new MuEditHeadless(parent, name, label, type, options);
}

LabelWrapperHeadless* MuEditHeadless::peer() {
  return static_cast<LabelWrapperHeadless*>(common());
}

void MuEditHeadless::setText(const char* text) {
  peer()->record("setText");
  text_ = EditText::fromUtf8(text, editType() == Password);
}

plat::String MuEditHeadless::getText() {
  return plat::String(text_.toUtf8().data());
}

void MuEditHeadless::setCue(const char* text) {
  cue_ = plat::String(text);
}

void MuEditHeadless::select(int start, int length) {
  if (start < 0) {
    text_.select(text_.selectionEnd(), text_.selectionEnd());
    return;
  }
  const int first = text_.unitAtByte(start);
  text_.select(first, length < 0 ? text_.length() : text_.unitAtByte(start + length));
}

int MuEditHeadless::getSelection(int* length) {
  const int start = text_.bytesBefore(text_.selectionStart());
  *length = text_.bytesBefore(text_.selectionEnd()) - start;
  return start;
}

void MuEditHeadless::setFilter(Filter* filter) {
  MuEdit::setFilter(filter);
  peer()->record("setFilter");
}

int MuEditHeadless::lineHeight() {
  return TextModelHeadless(effectiveStyle(), false).lineHeight();
}

int MuEditHeadless::lineCount(int width) {
  if (editType() != Multiline)
    return 1;
  return static_cast<int>(
      TextModelHeadless(effectiveStyle(), false).wrap(text_.toUtf8().data(), width).size());
}

void MuEditHeadless::take(EditText text) {
  const bool changed = !(text == text_);
  text_ = std::move(text);
  if (changed)
    textChangedByUser();
}

bool MuEditHeadless::enter(const EditInput& input) {
  if (!peer()->acceptsInput())
    return false;
  EditText after = text_;
  if (!admitsInput(after, input))
    return false;
  take(std::move(after));
  return true;
}

bool MuEditHeadless::type(const char* text) {
  for (const char* cursor = text; *cursor;) {
    const int c = plat::decodeUtf8(cursor);
    if (!typeCharacter(static_cast<char32_t>(c < 0 ? 0xFFFD : c)))
      return false;
  }
  return true;
}

bool MuEditHeadless::typeCharacter(char32_t character) {
  EditInput input;
  input.character = character;
  return enter(input);
}

bool MuEditHeadless::pressBackspace(bool control) {
  EditInput input;
  input.kind = EditInput::Backspace;
  input.control = control;
  return enter(input);
}

bool MuEditHeadless::pressDelete(bool shift, bool control, bool alt) {
  EditInput input;
  input.kind = EditInput::Delete;
  input.shift = shift;
  input.control = control;
  input.alt = alt;
  return enter(input);
}

bool MuEditHeadless::cut() {
  EditInput input;
  input.kind = EditInput::Cut;
  return enter(input);
}

bool MuEditHeadless::clear() {
  EditInput input;
  input.kind = EditInput::Clear;
  return enter(input);
}

bool MuEditHeadless::paste(const char* clipboard) {
  const EditText pasted = EditText::fromUtf8(clipboard, editType() == Password);
  EditInput input;
  input.kind = EditInput::Paste;
  input.clipboard = clipboard ? &pasted : nullptr;
  return enter(input);
}

bool MuEditHeadless::pressReturn(bool shift) {
  if (!peer()->acceptsInput())
    return false;
  if (editType() == Multiline && !shift) {
    EditText after = text_;
    after.replaceSelection(u"\n", 1);
    take(std::move(after));
    return true;
  }
  MuDialog* dialog = rootDialog();
  return dialog && dialog->activateByKey(KeyReturn);
}

} // namespace mui
