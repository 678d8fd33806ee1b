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

} // namespace os
