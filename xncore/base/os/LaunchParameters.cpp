#include "os/LaunchParameters.h"

#include <climits>

namespace os {

// These will move beside the process launcher and the relaunch through an
// elevation prompt.
plat::IntParameter
    createProcessWithLogonFlagsParameter("CreateProcessWithLogonFlags",
                                         "Flags to be provided to calls to CreateProcessWithLogonW",
                                         1, true, nullptr, 0, INT_MAX);
plat::BoolParameter noRelaunchParameter("_noRelaunch", "Don't attempt to relaunch via UAC prompt.",
                                        false, true);
plat::BoolParameter fromGuiParameter("_FromGui", "", false, true);

} // namespace os
