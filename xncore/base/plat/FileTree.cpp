#include "plat/FileTree.h"

#include "plat/DString.h"
#include "plat/DirEnumerator.h"
#include "plat/Exception.h"
#include "plat/FileSystem.h"
#include "plat/Path.h"

#include <cstring>

namespace plat {

String findUniqueName(const char* dir, const char* name, const char* separator, const char* suffix,
                      int maxTries) {
  String safe = pathMakeSafeName(name ? name : "", '-');
  char* extension = std::strrchr(safe.data(), '.');
  if (extension)
    *extension++ = '\0';
  for (int attempt = 0; attempt < maxTries; ++attempt) {
    DString leaf(safe.get());
    if (attempt > 0)
      leaf.appendFormat("%s%d%s", separator, attempt, suffix);
    if (extension)
      leaf.appendFormat(".%s", extension);
    String candidate = pathJoin(dir, leaf.get());
    if (!fileExists(candidate.get()))
      return candidate;
  }
  throw Exception("Too many files with same name");
}

String findFileInTree(const char* dir, const char* name) {
  DirEnumerator entries(dir);
  while (entries.next()) {
    String found = entries.isDirectory() ? findFileInTree(entries.path().get(), name)
                   : std::strcmp(entries.name(), name) == 0 ? entries.path()
                                                            : String();
    if (!found.isNull())
      return found;
  }
  return String();
}

bool mkDirPath(const char* path) {
  String normal = pathNormalise(path);
  if (isDirectory(normal.get()))
    return false;
  String parent = pathDirName(normal.get());
  // The root and "." are their own parents, which ends the climb.
  if (parent != normal)
    mkDirPath(parent.get());
  return mkDir(normal.get());
}

} // namespace plat
