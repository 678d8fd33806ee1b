// ftCommon::FtPermission: the permission letter 't', to transfer files in either
// direction.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace ftCommon {

class FtPermission : public xnauth::FeaturePermission {
public:
  FtPermission();
};

} // namespace ftCommon
