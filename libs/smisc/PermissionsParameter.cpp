#include "smisc/PermissionsParameter.h"

namespace smisc {

// Will move beside the permissions control of the schemes.
plat::StringParameter
    permissionsParameter("Permissions", plat::DescKey{"smisc_permissionscontrol_param_permissions"},
                         "");

} // namespace smisc
