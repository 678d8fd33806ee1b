// The program's full alphabet for the length of one test. The alphabet is
// process-wide, so a test that needs the feature letters gets them from this
// fixture, which defines them in the program's order and undefines them again;
// every other test sees the built-in letters alone, whatever ran before.
#pragma once

#include "chat/ChatPermission.h"
#include "ftCommon/FtPermission.h"
#include "localInput/LocalInputPermission.h"
#include "print/PrintPermission.h"
#include "screenrecorder/ScreenRecorderPermission.h"
#include "smisc/AudioPermission.h"
#include "smisc/ScreenBlankerPermission.h"

#include <gtest/gtest.h>

namespace xnauth::test {

// Members are constructed in declaration order: the program's order.
struct FeatureLetters {
  smisc::ScreenBlankerPermission screenBlanker;
  localInput::LocalInputPermission localInput;
  smisc::AudioPermission audio;
  chat::ChatPermission chat;
  ftCommon::FtPermission ft;
  print::PrintPermission print;
  screenrecorder::ScreenRecorderPermission screenRecorder;
};

class WithFeatureLetters : public ::testing::Test {
protected:
  FeatureLetters features_;
};

} // namespace xnauth::test
