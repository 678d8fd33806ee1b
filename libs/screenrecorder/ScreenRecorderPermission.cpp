#include "screenrecorder/ScreenRecorderPermission.h"

namespace screenrecorder {

ScreenRecorderPermission::ScreenRecorderPermission()
    : FeaturePermission('w', "screenrecorder_permission_desc", "fd", "SessionRecordEnable") {}

} // namespace screenrecorder
