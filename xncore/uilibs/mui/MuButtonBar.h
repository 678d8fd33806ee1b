// mui::MuButtonBar: the row of standard buttons under a form (OK, Cancel,
// Yes, No...), in a fixed order, right-aligned, with the program's own
// buttons at the left. Built only from public toolkit operations, it is a
// plain member of the dialog's owner. Directly in a dialog it stands in a
// footer strip at the bottom; anywhere else it is a row of its parent. It
// can choose the dialog's default and cancel buttons, which Return and
// Escape press. It must go before the dialog it is in.
#pragma once

#include "plat/NonCopyable.h"

#include <utility>
#include <vector>

namespace mui {

class MuButton;
class MuContainer;
class MuDialog;
class MuElement;
class MuFrame;
class MuLayout;
class MuSpacer;

class MuButtonBar : plat::NonCopyable {
public:
  /// Button ids, one bit each; a combination of them is a buttons word.
  enum Button : int {
    Ok = 1,
    Cancel = 2,
    Apply = 4,
    Yes = 8,
    No = 16,
    Back = 32,
    Next = 64,
    Continue = 128,
    Save = 256,
    Open = 512,
    /// The program's own button, with a name and a label of its own.
    Custom = 4096,
  };

  /// `parent` must be a container in a dialog; `buttons` holds no Custom.
  MuButtonBar(MuElement* parent, int buttons, bool autoDefault);
  ~MuButtonBar();

  /// Replaces all buttons, the program's own too, by the standard ones of
  /// `buttons`, in the bar's order; with `autoDefault`, chooseDefaultButtons().
  void setButtons(int buttons, bool autoDefault);
  /// A standard button, named and labelled as its id says and appended; or
  /// for Custom one of `name` and `label` left of the earlier ones. Null for
  /// any other id, 0 included.
  MuButton* addButton(int id, const char* name = nullptr, const char* label = nullptr);
  /// 0 for null, an element that isn't a button of the bar, or an unknown one.
  int buttonId(const MuElement* element) const;
  /// The first button of `id`, for Custom also of `name`; null if none.
  MuButton* button(int id, const char* name = nullptr) const;
  void setEnabled(bool enabled);
  /// Puts the expander at the end: the program's buttons added next go there.
  void resetExpander();
  /// The default button: the first the bar holds of OK, Yes, Continue, Next,
  /// Save and Open; the cancel button: of Cancel and No. Without one, the
  /// dialog keeps what it had.
  void chooseDefaultButtons();

  /// The footer frame, or null in a container that isn't the dialog.
  MuFrame* frame() const noexcept { return frame_; }
  MuLayout* layout() const noexcept { return layout_; }

private:
  MuDialog* dialog() const;
  MuSpacer* addExpander();
  void forgetDialogButtons();

  MuContainer* parent_;
  MuFrame* frame_ = nullptr;
  MuLayout* layout_ = nullptr;
  MuSpacer* expander_ = nullptr;
  MuElement* customAnchor_ = nullptr;
  MuSpacer* gap_ = nullptr;
  std::vector<std::pair<MuButton*, int>> buttons_;
};

} // namespace mui
