// smisc::ScreenBlankerPermission: the permission letter 'z', to blank the
// screen of the desktop while a client is connected.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace smisc {

class ScreenBlankerPermission : public xnauth::FeaturePermission {
public:
  ScreenBlankerPermission();
};

} // namespace smisc
