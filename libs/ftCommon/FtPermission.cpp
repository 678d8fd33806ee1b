#include "ftCommon/FtPermission.h"

#include "ftCommon/TextKeys.h"

namespace ftCommon {

FtPermission::FtPermission()
    : FeaturePermission('t', textkey::ft_permission_desc, "fd", "ShareFiles") {}

} // namespace ftCommon
