#include "os/KeyMapParameter.h"

namespace os {

// Will move beside the key mapping of the native input layer.
plat::StringParameter vkMapParameter(
    "VkMap",
    "Comma-separated list of mappings from keysym to virtual key code. Each mapping is a "
    "hexadecimal keysym followed by : and a hexadecimal VK code. Extended VK codes are specified "
    "as 0x100 plus the base VK code.",
    "", true);

} // namespace os
