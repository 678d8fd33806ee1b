// The hardening of the process at start-up, where the system offers it.
#pragma once

namespace os {

/// Has modules loaded only from the system's own places, and a refused module
/// bring up no dialog. Where the system offers neither, says so on the log
/// source "ProcessMitigation".
void applyProcessMitigations();

} // namespace os
