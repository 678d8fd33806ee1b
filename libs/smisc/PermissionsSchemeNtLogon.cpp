#include "smisc/PermissionsSchemeNtLogon.h"

#include "os/Sid.h"
#include "sui/PermissionsSchemeEditor.h"
#include "sysauth/SecurityPrincipal.h"
#include "xnauth/Permissions.h"

#include <memory>
#include <string>

namespace smisc {

namespace {

// Stands for the user at the desktop: an entry for one person, not a group.
bool isCreatorOwner(const os::Sid& sid) {
  return sid == os::wellKnownSid(3, 0);
}

} // namespace

PermissionsSchemeNtLogon::PermissionsSchemeNtLogon(sui::PermissionsSchemeEditor* editor)
    : PermissionsSchemeSystemAuth(editor) {}

PermissionsSchemeNtLogon::~PermissionsSchemeNtLogon() = default;

void PermissionsSchemeNtLogon::showAddDialog() {
  bool picked = false;
  try {
    picked = picker_.pick(editor_->getDialog(), true);
  } catch (const plat::SystemException&) {
    // No picker to be had: the typed dialog is a complete way of adding. What
    // it throws in turn reaches the binding, which shows it.
    PermissionsSchemeSystemAuth::showAddDialog();
    return;
  }
  if (!picked) {
    if (picker_.typedNameRequested())
      PermissionsSchemeSystemAuth::showAddDialog();
    return;
  }
  for (const PickedObject& object : picker_.results) {
    if (!object.sid)
      continue;
    plat::String id = os::sidToString(*object.sid);
    // Without a principal name the resolver names the entry when the list asks.
    std::string display;
    if (!object.upn.isNull() && *object.upn.get())
      display = std::string(object.name.orEmpty()) + " (" + object.upn.get() + ")";
    bool isGroup = object.isGroup && !isCreatorOwner(*object.sid);
    addPrincipal(std::make_unique<sysauth::SecurityPrincipal>(
        id.get(), xnauth::Permissions("d"), isGroup, display.empty() ? nullptr : display.c_str()));
  }
}

} // namespace smisc
