#include "localInput/LocalInputPermission.h"

namespace localInput {

LocalInputPermission::LocalInputPermission()
    : FeaturePermission('n', "localInput_permission_desc", "f", "LocalInputAllowClientControl") {}

} // namespace localInput
