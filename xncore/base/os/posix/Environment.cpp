#include "os/Environment.h"

#include "plat/Exception.h"

#include <errno.h>
#include <stdlib.h>

namespace os {

void setEnvironmentVariable(const char* name, const char* value) {
  if (setenv(name, value, 1) != 0)
    throw plat::SystemExceptionFmt("setenv(%s)", errno, name);
}

} // namespace os
