#include "smisc/ScreenBlankerPermission.h"

#include "smisc/TextKeys.h"

namespace smisc {

ScreenBlankerPermission::ScreenBlankerPermission()
    : FeaturePermission('z', textkey::smisc_privacymode_screenblanker_permission_desc, "fd",
                        "BlankScreen") {}

} // namespace smisc
