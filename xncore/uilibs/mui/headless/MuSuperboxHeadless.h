// mui::MuSuperboxHeadless: the superbox of the headless binding: a text kept
// in memory beside its caption (LabelWrapperHeadless). Tests type, press
// keys, the drop-down key, and the mouse in the box, in the popup or
// elsewhere, and take the focus away, as the user would.
#pragma once

#include "mui/MuSuperbox.h"

#include <string>

namespace mui {

class LabelWrapperHeadless;

class MuSuperboxHeadless : public MuSuperbox {
public:
  static MuSuperbox* make(MuContainer* parent, const char* name, const char* label,
                          Callback* callback, int popupHeight);

  plat::String getText() override;
  void setText(const char* text) override;
  void setCue(const char* text) override;

  LabelWrapperHeadless* peer();
  const std::string& cue() const noexcept { return cue_; }
  /// Whether the whole text is selected, as setText() does in a focused box.
  bool isAllSelected() const noexcept { return allSelected_; }

  // The user's side; nothing reaches a box that is disabled or locked.
  /// Types `text` at the end, or over the text when it is all selected.
  void type(const char* text);
  /// A key in the box: the key filter, then what the dialog does with it.
  void pressKey(int keysym);
  /// F4, or Alt with Up or Down.
  void pressDropDown();
  /// A press in the box; false when it was swallowed.
  bool pressBox();
  void pressInPopup();
  void pressElsewhere();
  /// The focus goes to another control.
  void loseFocus();

private:
  MuSuperboxHeadless(MuContainer* parent, const char* name, const char* label, Callback* callback,
                     int popupHeight);
  bool takesInput();

  int boxHeight() override;

  std::string text_;
  std::string cue_;
  bool allSelected_ = false;
};

} // namespace mui
