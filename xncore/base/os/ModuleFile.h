// Where the running program and its modules lie on disk, and the search for a
// file that belongs to the program: beside the executable, or on the path.
#pragma once

#include "plat/String.h"

namespace os {

/// The path of the loaded module (the program or a shared library) that
/// holds `address`; null `address` means the program itself. Raises
/// plat::SystemException "GetModuleFileName" when the system cannot say.
plat::String getModuleFileName(const void* address);

/// The full path of the executable of process `processId`. Raises
/// plat::SystemException "QueryFullProcessImageName".
plat::String getProcessImageName(int processId);

/// The directory of this process's executable.
plat::String getExecutableDir();

/// The first file `name` on the system's search path, or null.
plat::String searchSystemPath(const char* name);

/// With a null `name`, the program's own path. An absolute `name` is the
/// result when such a file exists. Otherwise the file `name` beside the
/// executable, and failing that, when `useSearchPath` is set and `name` has no
/// directory part, the first match on the system's search path. Nothing found
/// gives null, or with `required` plat::SystemException of `name` with the
/// code for a missing file.
plat::String findModuleFile(const char* name, bool required, bool useSearchPath);

} // namespace os
