#include "plat/LogRotation.h"

#include "plat/DString.h"
#include "plat/DirEnumerator.h"
#include "plat/Exception.h"
#include "plat/FileSystem.h"
#include "plat/FileTree.h"
#include "plat/LocalTime.h"
#include "plat/Path.h"
#include "plat/StringUtils.h"

#include <algorithm>

namespace plat {

namespace {

// Beyond this many days the cutoff lies before any file's time anyway, and
// the product of days and ticks would overflow.
constexpr std::int64_t maxKeepDays = 1'000'000;

// Deletes the earlier files of `leaf` in `dir`; false when the directory
// cannot be listed.
bool deleteOldFiles(const char* dir, const char* leaf, Ticks cutoff) {
  DString prefix(leaf);
  prefix.append(".");
  try {
    DirEnumerator entries(dir);
    while (entries.next()) {
      if (entries.isDirectory() || !startsWith(entries.name(), prefix.get()))
        continue;
      String path = entries.path();
      try {
        if (fileGetTime(path.get()) < cutoff)
          fileDelete(path.get());
      } catch (const Exception&) {
        // One file that cannot go does not keep the others.
      }
    }
  } catch (const Exception&) {
    return false;
  }
  return true;
}

} // namespace

void rotateLogFile(const char* path, int keepDays, Ticks now) noexcept {
  try {
    String dir = pathDirName(path);
    String leaf = pathBaseName(path);
    Ticks cutoff = now - std::clamp<std::int64_t>(keepDays, 0, maxKeepDays) * ticksPerDay;
    if (!deleteOldFiles(dir.get(), leaf.get(), cutoff) || !fileExists(path))
      return;
    DateFields changed;
    ticksToLocal(changed, fileGetTime(path));
    String rotated = strFormat("%s.%04d%02d%02d%02d%02d%02d", leaf.get(), changed.tm_year + 1900,
                               changed.tm_mon + 1, changed.tm_mday, changed.tm_hour, changed.tm_min,
                               changed.tm_sec);
    String target = findUniqueName(dir.get(), rotated.get(), "(", ")", 100);
    fileRename(path, target.get());
  } catch (...) {
    // Whatever stops the rotation leaves the file to be overwritten.
  }
}

} // namespace plat
