#include "os/SystemInfo.h"

#include "plat/DString.h"

#include <sys/utsname.h>

#include <cstdio>
#include <cstring>

namespace os {

namespace {

// The value of `key` in an os-release file: KEY=value or KEY="value".
plat::String osReleaseValue(const char* path, const char* key) {
  std::FILE* file = std::fopen(path, "r");
  if (!file)
    return plat::String();
  plat::String value;
  char line[512];
  std::size_t keyLength = std::strlen(key);
  while (value.isNull() && std::fgets(line, sizeof line, file)) {
    if (std::strncmp(line, key, keyLength) != 0 || line[keyLength] != '=')
      continue;
    const char* begin = line + keyLength + 1;
    std::size_t length = std::strcspn(begin, "\r\n");
    if (length >= 2 && (*begin == '"' || *begin == '\'') && begin[length - 1] == *begin) {
      ++begin;
      length -= 2;
    }
    value = plat::strDup(begin, static_cast<int>(length));
  }
  std::fclose(file);
  return value;
}

} // namespace

plat::String operatingSystemName() {
  for (const char* path : {"/etc/os-release", "/usr/lib/os-release"}) {
    plat::String name = osReleaseValue(path, "PRETTY_NAME");
    if (!name.isNull() && *name.get())
      return name;
  }
  utsname system{};
  if (uname(&system) != 0)
    return plat::String("Linux");
  return plat::strFormat("%s %s", system.sysname, system.release);
}

plat::String processArchitectureWord() {
  utsname system{};
  const char* machine = uname(&system) == 0 ? system.machine : "";
  bool wide = sizeof(void*) == 8;
  if (std::strcmp(machine, "aarch64") == 0)
    return plat::String(wide ? "ARM64" : "WOW64");
  if (std::strcmp(machine, "x86_64") == 0)
    return plat::String(wide ? "x64" : "WOW64");
  return plat::String(*machine ? machine : "unknown");
}

} // namespace os
