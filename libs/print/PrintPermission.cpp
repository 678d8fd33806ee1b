#include "print/PrintPermission.h"

namespace print {

PrintPermission::PrintPermission()
    : FeaturePermission('r', "print_permission_desc", "fd", "EnableRemotePrinting") {}

} // namespace print
