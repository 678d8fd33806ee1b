// The parameter "Permissions": the access list that this program exists to
// edit. The permission schemes read it, and write their rendered list back
// at priority 10 on every change of the form.
#pragma once

#include "plat/StringParameter.h"

namespace smisc {

/// Comma-separated USER_OR_GROUP:PERMISSIONS entries.
extern plat::StringParameter permissionsParameter;

} // namespace smisc
