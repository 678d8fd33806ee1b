// Changing the process's environment, which the expansion of "$NAME" in
// paths reads.
#pragma once

namespace os {

/// Sets `name` to `value` for this process and the processes it starts.
/// Raises plat::SystemException "setenv(<name>)".
void setEnvironmentVariable(const char* name, const char* value);

} // namespace os
