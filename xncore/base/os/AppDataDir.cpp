#include "os/AppDataDir.h"

#include "plat/DString.h"
#include "plat/FileTree.h"
#include "plat/Path.h"

namespace os {

plat::String getAppDataDir(AppDataScope scope, const char* company, bool create) {
  plat::DString leaf(company);
  if (scope == AppDataScope::Service)
    leaf.append("-Service");
  plat::String dir = plat::pathJoin(knownFolderPath(scope).get(), leaf.get());
  if (create)
    plat::mkDirPath(dir.get());
  return dir;
}

} // namespace os
