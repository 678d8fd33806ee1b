#include "smisc/ScreenBlankerPermission.h"

namespace smisc {

ScreenBlankerPermission::ScreenBlankerPermission()
    : FeaturePermission('z', "smisc_privacymode_screenblanker_permission_desc", "fd",
                        "BlankScreen") {}

} // namespace smisc
