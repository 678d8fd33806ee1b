#include "print/PrintPermission.h"

#include "print/TextKeys.h"

namespace print {

PrintPermission::PrintPermission()
    : FeaturePermission('r', textkey::print_permission_desc, "fd", "EnableRemotePrinting") {}

} // namespace print
