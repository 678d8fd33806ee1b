#include "os/AppDataDir.h"
#include "plat/Exception.h"
#include "plat/Path.h"

#include <stdlib.h>
#include <unistd.h>

namespace os {

namespace {

// An XDG directory as the variable gives it, or else the default below the
// home directory. Relative values are ignored, as the XDG rules ask.
plat::String xdgDirectory(const char* variable, const char* belowHome) {
  const char* value = getenv(variable);
  if (value && plat::pathIsAbsolute(value))
    return plat::String(value);
  const char* home = getenv("HOME");
  if (!home || !plat::pathIsAbsolute(home))
    throw plat::Exception("Cannot find user profile known folder");
  return plat::pathJoin(home, belowHome);
}

} // namespace

// Root stands for the machine's administrators.
bool processIsAdministrator() {
  return geteuid() == 0;
}

plat::String knownFolderPath(AppDataScope scope) {
  switch (scope) {
  case AppDataScope::UserRoaming:
    return xdgDirectory("XDG_DATA_HOME", ".local/share");
  case AppDataScope::UserLocal:
    return xdgDirectory("XDG_STATE_HOME", ".local/state");
  case AppDataScope::Service:
    break;
  }
  return plat::String("/var/lib");
}

} // namespace os
