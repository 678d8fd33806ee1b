#include "os/AppDataDir.h"

#include "os/AppInfo.h"
#include "plat/DString.h"
#include "plat/FileSystem.h"
#include "plat/FileTree.h"
#include "plat/Path.h"

namespace os {

plat::String getAppDataDir(AppDataScope scope, const char* company, bool create,
                           bool serviceNeedsAdmin) {
  bool administrator = scope == AppDataScope::Service && processIsAdministrator();
  if (serviceNeedsAdmin && scope == AppDataScope::Service && !administrator)
    scope = AppDataScope::UserLocal;
  plat::DString leaf(company ? company : getCompany(false));
  if (scope == AppDataScope::Service)
    leaf.append("-Service");
  plat::String base = knownFolderPath(scope);
  plat::String dir = plat::pathJoin(base.get(), leaf.get());
  if (!create)
    return dir;
  if (administrator) {
    plat::mkDirPath(base.get());
    plat::makePrivateDir(dir.get());
  } else {
    plat::mkDirPath(dir.get());
  }
  return dir;
}

} // namespace os
