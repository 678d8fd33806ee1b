#include "os/ModuleFile.h"

#include "plat/Exception.h"
#include "plat/FileSystem.h"
#include "plat/Path.h"

#include <cstring>

namespace os {

namespace {

// The code of a missing file, which callers compare with.
constexpr int fileNotFound = 2;

} // namespace

plat::String getExecutableDir() {
  return plat::pathDirName(getModuleFileName(nullptr).get());
}

plat::String findModuleFile(const char* name, bool required, bool useSearchPath) {
  if (!name)
    return getModuleFileName(nullptr);
  plat::String found;
  if (plat::pathIsAbsolute(name)) {
    if (plat::fileExists(name))
      found = plat::String(name);
  } else {
    plat::String beside = plat::pathJoin(getExecutableDir().get(), name);
    if (plat::fileExists(beside.get()))
      found = std::move(beside);
    else if (useSearchPath && !std::strchr(name, plat::pathSeparator()))
      found = searchSystemPath(name);
  }
  if (found.isNull() && required)
    throw plat::SystemException(name, fileNotFound);
  return found;
}

} // namespace os
