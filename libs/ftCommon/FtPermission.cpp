#include "ftCommon/FtPermission.h"

namespace ftCommon {

FtPermission::FtPermission() : FeaturePermission('t', "ft_permission_desc", "fd", "ShareFiles") {}

} // namespace ftCommon
