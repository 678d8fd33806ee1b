#include "mui/EditInput.h"

namespace mui {

namespace {

// Selects the character just before the caret, both halves of a pair.
void selectBefore(EditText& text) {
  const int caret = text.selectionEnd();
  int start = caret - 1;
  if (start > 0 && isLowSurrogate(text.units()[start]) && isHighSurrogate(text.units()[start - 1]))
    --start;
  text.select(start, caret);
}

// Selects the character just after the caret, both halves of a pair.
void selectAfter(EditText& text) {
  const int caret = text.selectionEnd();
  int end = caret + 1;
  if (end < text.length() && isHighSurrogate(text.units()[caret]) &&
      isLowSurrogate(text.units()[end]))
    ++end;
  text.select(caret, end);
}

void deleteSelection(EditText& text) {
  text.replaceSelection(nullptr, 0);
}

EditVerdict typeCharacter(EditText& text, char32_t c, char32_t* typed) {
  if (isSurrogate(c))
    return EditVerdict::Swallowed;
  if (c < 32 || c == 127)
    return EditVerdict::Unfiltered;
  char16_t units[2];
  int length = 1;
  if (c >= 0x10000) {
    units[0] = static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
    units[1] = static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    length = 2;
  } else {
    units[0] = static_cast<char16_t>(c);
  }
  text.replaceSelection(units, length);
  *typed = c;
  return EditVerdict::Filtered;
}

} // namespace

EditVerdict applyEditInput(EditText& text, const EditInput& input, char32_t* typed) {
  switch (input.kind) {
  case EditInput::Character:
    return typeCharacter(text, input.character, typed);
  case EditInput::Backspace:
    if (input.control)
      return EditVerdict::Unfiltered;
    if (!text.hasSelection())
      selectBefore(text);
    break;
  case EditInput::Delete:
    if (input.alt || (input.control && input.shift))
      return EditVerdict::Unfiltered;
    if (text.hasSelection())
      break;
    if (input.shift)
      selectBefore(text);
    else if (input.control)
      text.select(text.selectionEnd(), text.length());
    else
      selectAfter(text);
    break;
  case EditInput::Cut:
  case EditInput::Clear:
    break;
  case EditInput::Paste:
    if (!input.clipboard || input.clipboard->length() == 0)
      return EditVerdict::Swallowed;
    text.replaceSelection(*input.clipboard);
    *typed = 0;
    return EditVerdict::Filtered;
  }
  deleteSelection(text);
  *typed = 0;
  return EditVerdict::Filtered;
}

} // namespace mui
