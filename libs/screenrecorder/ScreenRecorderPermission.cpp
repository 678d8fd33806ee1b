#include "screenrecorder/ScreenRecorderPermission.h"

#include "screenrecorder/TextKeys.h"

namespace screenrecorder {

ScreenRecorderPermission::ScreenRecorderPermission()
    : FeaturePermission('w', textkey::screenrecorder_permission_desc, "fd", "SessionRecordEnable") {
}

} // namespace screenrecorder
