// The parameters of launching processes: how a process is started under
// another account, and the internal flags by which the program knows that it
// was relaunched (through an elevation prompt, or from the user interface).
#pragma once

#include "plat/BoolParameter.h"
#include "plat/IntParameter.h"

namespace os {

/// "CreateProcessWithLogonFlags": the logon flags of a launch as another user.
extern plat::IntParameter createProcessWithLogonFlagsParameter;
/// "_noRelaunch": never relaunch through an elevation prompt.
extern plat::BoolParameter noRelaunchParameter;
/// "_FromGui": this process was started by the user interface.
extern plat::BoolParameter fromGuiParameter;

} // namespace os
