// What one input of the user does to the text of an edit, worked out before
// the control applies it, so that the edit's filter can refuse it. By the
// rules the platform's edit controls follow, an input is either put to the
// filter, passed to the control without it, or swallowed.
#pragma once

#include "mui/EditText.h"

namespace mui {

struct EditInput {
  enum Kind {
    /// A typed character: it takes the place of the selection.
    Character,
    Backspace,
    /// The Delete key.
    Delete,
    /// Cut and clear delete the selection.
    Cut,
    Clear,
    /// The clipboard's text takes the place of the selection.
    Paste,
  };

  Kind kind = Character;
  char32_t character = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
  /// For Paste: the clipboard's text; null when it holds none or can't be read.
  const EditText* clipboard = nullptr;
};

enum class EditVerdict {
  /// The filter decides on the text that the input makes.
  Filtered,
  /// The control gets the input and the filter isn't asked.
  Unfiltered,
  /// The input never reaches the control.
  Swallowed,
};

/// The verdict on `input`. For Filtered, `text` becomes the text after the
/// input and `typed` the code point that the filter is told of (0 for all but
/// a typed character); otherwise both stay as they were.
EditVerdict applyEditInput(EditText& text, const EditInput& input, char32_t* typed);

} // namespace mui
