// What the product says about the system it runs on, for its information
// text and its logs.
#pragma once

#include "plat/String.h"

namespace os {

/// The operating system's product name, such as "Debian GNU/Linux 12 (bookworm)".
plat::String operatingSystemName();

/// The architecture word of this process: "x64", "ARM64", or "WOW64" for a
/// 32-bit process on a 64-bit system.
plat::String processArchitectureWord();

/// Hardens the process where the system offers it: modules are loaded only
/// from the system's own places, and a refused module brings up no dialog.
/// Where it offers nothing, says so on the log source "ProcessMitigation".
void applyProcessMitigations();

} // namespace os
