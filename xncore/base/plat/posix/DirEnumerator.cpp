#include "plat/DirEnumerator.h"

#include "plat/Exception.h"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/stat.h>

namespace plat {

namespace {

DIR* stream(void* handle) noexcept {
  return static_cast<DIR*>(handle);
}

bool isDotEntry(const char* name) noexcept {
  return strcmp(name, ".") == 0 || strcmp(name, "..") == 0;
}

// Some file systems leave d_type unknown; then the entry itself is asked.
bool entryIsDirectory(DIR* dir, const dirent* entry) noexcept {
  if (entry->d_type != DT_UNKNOWN)
    return entry->d_type == DT_DIR;
  struct stat info;
  return fstatat(dirfd(dir), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISDIR(info.st_mode);
}

} // namespace

DirEnumerator::DirEnumerator(const char* dir) : dir_(dir) {
  handle_ = opendir(dir);
  if (!handle_)
    throw SystemExceptionFmt("opendir(%s)", errno, dir);
}

DirEnumerator::~DirEnumerator() {
  closedir(stream(handle_));
}

bool DirEnumerator::next() {
  for (;;) {
    // readdir returns null both at the end and on failure; only errno tells.
    errno = 0;
    const dirent* entry = readdir(stream(handle_));
    if (!entry) {
      if (errno != 0)
        throw SystemExceptionFmt("readdir(%s)", errno, dir_.get());
      name_.clear();
      isDirectory_ = false;
      return false;
    }
    if (isDotEntry(entry->d_name))
      continue;
    name_.clear();
    name_.append(entry->d_name);
    isDirectory_ = entryIsDirectory(stream(handle_), entry);
    return true;
  }
}

} // namespace plat
