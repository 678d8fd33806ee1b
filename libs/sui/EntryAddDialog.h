// sui::EntryAddDialog: the small dialog in which a scheme's entry is typed
// in. Two labelled fields with their labels equally wide, an info frame that
// shows what is wrong with the input, and Ok and Cancel, Ok the default and
// disabled until the first field holds something. The dialog is modal to its
// window and doesn't block: its owner observes the dialog and learns from
// EventClosed, after which accepted() tells whether Ok closed it. The owner
// deletes it later, since the close is reported from inside the dialog.
#pragma once

#include "mui/MuObserver.h"

#include <memory>

namespace mui {
class MuButtonBar;
class MuDialog;
class MuElement;
class MuInfoFrame;
class MuLayout;
} // namespace mui

namespace sui {

class EntryAddDialog : mui::MuObserver {
public:
  ~EntryAddDialog() override;

  mui::MuDialog* dialog() const noexcept { return dialog_.get(); }
  /// Whether Ok closed the dialog.
  bool accepted() const noexcept { return accepted_; }
  /// Shows the dialog, the focus in the field completeForm named.
  void show();

protected:
  /// A hidden dialog named `name` over `parent`, with an empty column for the fields.
  EntryAddDialog(mui::MuDialog* parent, const char* name, const char* title);

  /// After the two fields: the info frame and the buttons below them, the
  /// captions made equally wide, Ok disabled. `focusField` takes the focus
  /// when the dialog shows.
  void completeForm(mui::MuElement* focusField, mui::MuElement* otherField);
  /// Shows `text` (plain text) as an error and puts the focus in `field`.
  void showError(const char* text, mui::MuElement* field);

  /// Ok was pressed: whether the input may close the dialog; if not, the
  /// dialog shows why (showError).
  virtual bool acceptInput() = 0;
  /// Whether Ok can be pressed now.
  virtual bool hasInput() = 0;
  /// Whether a change of `source` hides the error and decides afresh on Ok.
  virtual bool weighsChange(mui::MuElement* source) = 0;

  mui::MuLayout* layout_;

private:
  void changed(mui::MuElement* source) override;
  void clicked(mui::MuElement* source) override;
  void close(bool accepted);

  std::unique_ptr<mui::MuDialog> dialog_;
  std::unique_ptr<mui::MuInfoFrame> info_;
  std::unique_ptr<mui::MuButtonBar> buttonBar_;
  mui::MuElement* focusField_ = nullptr;
  bool accepted_ = false;
};

} // namespace sui
