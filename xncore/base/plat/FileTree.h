// Operations over several entries of the file system, built on the single ones:
// free names for new files, searching a tree, creating a directory's ancestors.
#pragma once

#include "plat/String.h"

namespace plat {

/// A path in `dir` for a new file named after `name`, made safe with "-". The
/// first try is the name itself, then "<base><separator><n><suffix>.<ext>" for
/// n = 1, 2, ... below `maxTries`. Raises Exception "Too many files with same
/// name" when every candidate exists.
String findUniqueName(const char* dir, const char* name, const char* separator, const char* suffix,
                      int maxTries);

/// The full path of the first file called `name` below `dir`, depth first, or null.
String findFileInTree(const char* dir, const char* name);

/// Creates `path` and every missing directory above it; true when `path`
/// itself was created.
bool mkDirPath(const char* path);

} // namespace plat
