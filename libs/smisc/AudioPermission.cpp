#include "smisc/AudioPermission.h"

namespace smisc {

AudioPermission::AudioPermission()
    : FeaturePermission('l', "xnauth_permissions_listen_desc", "fdv", "AudioEnable") {}

} // namespace smisc
