// The parameter "VkMap": extra mappings from keysyms to virtual key codes,
// read by the key mapping of the native input layer.
#pragma once

#include "plat/StringParameter.h"

namespace os {

/// Comma-separated "keysym:vk" pairs in hexadecimal.
extern plat::StringParameter vkMapParameter;

} // namespace os
