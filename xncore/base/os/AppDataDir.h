// Where the program keeps its data: a folder of the company below one of the
// places the system sets aside for it, by scope.
#pragma once

#include "plat/String.h"

namespace os {

enum class AppDataScope {
  UserRoaming = 0, ///< the user's data that may follow the user between machines
  UserLocal = 1,   ///< the user's data that stays on this machine, such as logs
  Service = 2,     ///< data of a service of the whole machine
};

/// The system's folder for `scope`. Raises plat::Exception "Cannot find user
/// profile known folder" when there is none.
plat::String knownFolderPath(AppDataScope scope);

/// Whether this process runs with the rights of the machine's administrators.
bool processIsAdministrator();

/// "<known folder>/<company>", with "-Service" after the company for the
/// service scope. A null `company` is the application's (getCompany). With
/// `serviceNeedsAdmin`, the service scope falls back to the user's local one
/// for a process without administrator rights. `create` makes the directory:
/// for the service scope as administrator one that only administrators may
/// use (anything else in its place is renamed to "<dir>.bad" first), in every
/// other case a plain one, where an existing directory is fine.
plat::String getAppDataDir(AppDataScope scope, const char* company, bool create,
                           bool serviceNeedsAdmin);

} // namespace os
