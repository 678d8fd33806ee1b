// smisc::AudioPermission: the permission letter 'l', to hear the desktop's
// audio. A member of the view-only group, since listening changes nothing.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace smisc {

class AudioPermission : public xnauth::FeaturePermission {
public:
  AudioPermission();
};

} // namespace smisc
