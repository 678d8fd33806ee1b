#include "localInput/LocalInputPermission.h"

#include "localInput/TextKeys.h"

namespace localInput {

LocalInputPermission::LocalInputPermission()
    : FeaturePermission('n', textkey::localInput_permission_desc, "f",
                        "LocalInputAllowClientControl") {}

} // namespace localInput
