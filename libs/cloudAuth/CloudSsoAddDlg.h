// cloudAuth::CloudSsoAddDlg: the dialog in which the administrator gives an
// identity provider's group by UUID, with the name the list shows for it. Ok
// takes a UUID in any of its written forms and keeps the text as typed; any
// other text shows the example of a valid UUID in the dialog's info frame, and
// the dialog stays open.
#pragma once

#include "plat/String.h"
#include "sui/EntryAddDialog.h"

namespace mui {
class MuEdit;
}

namespace cloudAuth {

class CloudSsoAddDlg : public sui::EntryAddDialog {
public:
  explicit CloudSsoAddDlg(mui::MuDialog* parent);

  plat::String groupUuid();
  plat::String displayName();

private:
  bool acceptInput() override;
  bool hasInput() override;
  /// Only a change of the UUID: the name may stay empty.
  bool weighsChange(mui::MuElement* source) override;

  mui::MuEdit* groupUuid_;
  mui::MuEdit* displayName_;
};

} // namespace cloudAuth
