// smisc::SystemAuthAddDlg: the dialog in which the administrator types the
// name of a user or group to add to the system scheme. Ok checks the name as
// the access list will: a name that is no account of the chosen kind shows why
// in the dialog's info frame, and the dialog stays open with the text kept.
#pragma once

#include "plat/String.h"
#include "sui/EntryAddDialog.h"

namespace mui {
class MuChoice;
class MuEdit;
} // namespace mui

namespace smisc {

class SystemAuthAddDlg : public sui::EntryAddDialog {
public:
  /// Values of the type choice.
  enum Type : int { User = 0, Group = 1 };

  explicit SystemAuthAddDlg(mui::MuDialog* parent);

  bool isGroup();
  /// The id the typed name becomes, as the process's resolver makes it.
  plat::String id();

private:
  bool acceptInput() override;
  bool hasInput() override;
  bool weighsChange(mui::MuElement* source) override;

  mui::MuChoice* type_;
  mui::MuEdit* name_;
};

} // namespace smisc
