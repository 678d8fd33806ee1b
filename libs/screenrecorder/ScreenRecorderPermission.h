// screenrecorder::ScreenRecorderPermission: the permission letter 'w', to
// record the session.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace screenrecorder {

class ScreenRecorderPermission : public xnauth::FeaturePermission {
public:
  ScreenRecorderPermission();
};

} // namespace screenrecorder
