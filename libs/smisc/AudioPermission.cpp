#include "smisc/AudioPermission.h"

#include "xnauth/TextKeys.h"

namespace smisc {

AudioPermission::AudioPermission()
    : FeaturePermission('l', textkey::xnauth_permissions_listen_desc, "fdv", "AudioEnable") {}

} // namespace smisc
