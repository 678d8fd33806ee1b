#include "oxnpermissionscreator/FeaturePermissions.h"

#include "chat/ChatPermission.h"
#include "ftCommon/FtPermission.h"
#include "localInput/LocalInputPermission.h"
#include "print/PrintPermission.h"
#include "screenrecorder/ScreenRecorderPermission.h"
#include "smisc/AudioPermission.h"
#include "smisc/ScreenBlankerPermission.h"

namespace app {

void defineFeaturePermissions() {
  // Function-local statics: constructed once, in this order, after the locale
  // is settled (the definitions keep their translated descriptions).
  static smisc::ScreenBlankerPermission screenBlankerPermission;
  static localInput::LocalInputPermission localInputPermission;
  static smisc::AudioPermission audioPermission;
  static chat::ChatPermission chatPermission;
  static ftCommon::FtPermission ftPermission;
  static print::PrintPermission printPermission;
  static screenrecorder::ScreenRecorderPermission screenRecorderPermission;
}

} // namespace app
