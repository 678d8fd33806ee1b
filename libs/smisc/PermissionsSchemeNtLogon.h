// smisc::PermissionsSchemeNtLogon: the system scheme with the platform's
// directory object picker for adding, several users and groups at once. A
// picked object comes with its system id and, where the directory knows it,
// a display name, so no look-up is needed for it; each goes through the
// system scheme's adding, so a listed one selects its row. Where the picker
// can't be had, and when the user asks for it in the picker, the typed
// dialog of the system scheme takes its place.
#pragma once

#include "smisc/DsObjectPicker.h"
#include "smisc/PermissionsSchemeSystemAuth.h"

namespace smisc {

class PermissionsSchemeNtLogon : public PermissionsSchemeSystemAuth {
public:
  explicit PermissionsSchemeNtLogon(sui::PermissionsSchemeEditor* editor);
  ~PermissionsSchemeNtLogon() override;

  /// The picker, or the typed dialog when the picker fails or the user asks for it.
  void showAddDialog() override;

private:
  DsObjectPicker picker_;
};

} // namespace smisc
