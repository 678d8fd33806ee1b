#include "os/ProcessMitigation.h"

#include "plat/LogSrc.h"

namespace os {

namespace {

plat::LogSrc mitigationLog("ProcessMitigation");

} // namespace

void applyProcessMitigations() {
  // Shared libraries come from the dynamic loader's own search order, which
  // a program cannot narrow for itself, and there is no signature policy.
  mitigationLog.info("Not enabling RestrictedMode (not available on Linux)");
}

} // namespace os
