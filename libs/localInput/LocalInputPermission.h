// localInput::LocalInputPermission: the permission letter 'n', to disable or
// enable the local keyboard and mouse while connected. Only administrators get
// it by default, as it locks out whoever sits at the desktop.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace localInput {

class LocalInputPermission : public xnauth::FeaturePermission {
public:
  LocalInputPermission();
};

} // namespace localInput
