// print::PrintPermission: the permission letter 'r', to print to a printer
// local to the client.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace print {

class PrintPermission : public xnauth::FeaturePermission {
public:
  PrintPermission();
};

} // namespace print
