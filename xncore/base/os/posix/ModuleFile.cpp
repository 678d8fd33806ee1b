#include "os/ModuleFile.h"

#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/FileSystem.h"
#include "plat/Path.h"

#include <dlfcn.h>
#include <errno.h>
#include <stdlib.h>
#include <unistd.h>

#include <vector>

namespace os {

namespace {

// The target of a symbolic link of /proc. The kernel cuts a long target to
// the buffer without saying so, except by filling it: then the buffer doubles.
plat::String readProcLink(const char* link, const char* failure) {
  std::vector<char> buffer(260);
  for (;;) {
    ssize_t length = readlink(link, buffer.data(), buffer.size());
    if (length < 0)
      throw plat::SystemException(failure, errno);
    if (static_cast<std::size_t>(length) < buffer.size())
      return plat::strDup(buffer.data(), static_cast<int>(length));
    buffer.resize(buffer.size() * 2);
  }
}

} // namespace

plat::String getModuleFileName(const void* address) {
  if (!address)
    return readProcLink("/proc/self/exe", "GetModuleFileName");
  Dl_info info{};
  if (dladdr(address, &info) == 0 || !info.dli_fname || !*info.dli_fname)
    throw plat::SystemException("GetModuleFileName", ENOENT);
  // For the program itself the loader names the path it was started by,
  // which may be relative to a directory since left.
  if (plat::compare(info.dli_fname, program_invocation_name) == 0)
    return readProcLink("/proc/self/exe", "GetModuleFileName");
  return plat::pathMakeAbsolute(info.dli_fname);
}

plat::String getProcessImageName(int processId) {
  plat::String link = plat::strFormat("/proc/%d/exe", processId);
  return readProcLink(link.get(), "QueryFullProcessImageName");
}

plat::String searchSystemPath(const char* name) {
  const char* path = getenv("PATH");
  if (!path)
    return plat::String();
  for (const char* entry = path;;) {
    const char* end = entry;
    while (*end && *end != ':')
      ++end;
    // An empty entry is the current directory, as for the shell.
    plat::String dir =
        end == entry ? plat::String(".") : plat::strDup(entry, static_cast<int>(end - entry));
    plat::String candidate = plat::pathJoin(dir.get(), name);
    if (plat::fileExists(candidate.get()) && !plat::isDirectory(candidate.get()))
      return plat::pathMakeAbsolute(candidate.get());
    if (!*end)
      return plat::String();
    entry = end + 1;
  }
}

} // namespace os
