// mui::MuEditHeadless: the edit of the headless binding. Its text and
// selection live in an EditText, wiped when released for a password, beside
// a caption (LabelWrapperHeadless). Tests type, delete, cut and paste as the
// user would: each input goes through the edit's filter exactly as the
// platform's control would put it there, and a change raises EventChanged.
#pragma once

#include "mui/EditText.h"
#include "mui/MuEdit.h"

namespace mui {

class LabelWrapperHeadless;
struct EditInput;

class MuEditHeadless : public MuEdit {
public:
  static MuEdit* make(MuContainer* parent, const char* name, const char* label, int type,
                      int options);

  void setText(const char* text) override;
  plat::String getText() override;
  void setCue(const char* text) override;
  void select(int start, int length) override;
  int getSelection(int* length) override;
  void setFilter(Filter* filter) override;

  LabelWrapperHeadless* peer();
  const char* cue() const noexcept { return cue_.orEmpty(); }
  /// The text as the control holds it, with its selection.
  const EditText& text() const noexcept { return text_; }

  // The user's side. Each gives whether the input reached the control: false
  // when the edit is disabled, locked or hidden, or the filter refused it.
  /// Types the characters of UTF-8 `text` one by one, stopping at the first refused.
  bool type(const char* text);
  bool typeCharacter(char32_t character);
  bool pressBackspace(bool control = false);
  bool pressDelete(bool shift = false, bool control = false, bool alt = false);
  bool cut();
  bool clear();
  /// Pastes UTF-8 `clipboard`; null stands for an empty clipboard.
  bool paste(const char* clipboard);
  /// A new line in a multi-line edit, unless Shift is held; otherwise the dialog's Return.
  bool pressReturn(bool shift = false);

protected:
  int lineHeight() override;
  int lineCount(int width) override;

private:
  MuEditHeadless(MuContainer* parent, const char* name, const char* label, int type, int options);
  bool enter(const EditInput& input);
  /// The control takes `text`; a different text is the user's change.
  void take(EditText text);

  EditText text_;
  plat::String cue_;
};

} // namespace mui
