#include "smisc/PermissionsParameter.h"

#include "smisc/TextKeys.h"

namespace smisc {

// Will move beside the permissions control of the schemes.
plat::StringParameter
    permissionsParameter("Permissions",
                         plat::DescKey{textkey::smisc_permissionscontrol_param_permissions}, "");

} // namespace smisc
