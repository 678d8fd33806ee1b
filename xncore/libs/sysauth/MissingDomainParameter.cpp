#include "sysauth/MissingDomainParameter.h"

namespace sysauth {

// Will move beside the resolution of security principals.
plat::BoolParameter missingDomainNullParameter("_MissingDomainNull", "", true, false);

} // namespace sysauth
