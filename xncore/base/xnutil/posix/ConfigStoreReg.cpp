#include "xnutil/ConfigStoreReg.h"

#include "plat/Configuration.h"
#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/FileTree.h"
#include "plat/Handle.h"
#include "plat/LogSrc.h"
#include "plat/Path.h"

#include <errno.h>
#include <fcntl.h>
#include <pwd.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <string>
#include <vector>

namespace xnutil {

namespace {

plat::LogSrc storeLog("ConfigStore");

// The descriptor that `handle` owns.
int fd(const plat::Handle& handle) {
  return static_cast<int>(handle.get());
}

// The whole of an open file; a NUL byte ends the text early.
std::string readAll(int fd, const char* path) {
  std::string text;
  char buffer[65536];
  for (;;) {
    ssize_t got = read(fd, buffer, sizeof buffer);
    if (got < 0 && errno == EINTR)
      continue;
    if (got < 0)
      throw plat::SystemExceptionFmt("read(%s)", errno, path);
    if (got == 0)
      break;
    text.append(buffer, static_cast<std::size_t>(got));
  }
  return text.substr(0, std::strlen(text.c_str()));
}

void writeAll(int fd, const std::string& text, const char* path) {
  for (std::size_t done = 0; done < text.size();) {
    ssize_t wrote = write(fd, text.data() + done, text.size() - done);
    if (wrote < 0 && errno == EINTR)
      continue;
    if (wrote < 0)
      throw plat::SystemExceptionFmt("write(%s)", errno, path);
    done += static_cast<std::size_t>(wrote);
  }
}

plat::String userConfigDir(const char* company) {
  const char* config = getenv("XDG_CONFIG_HOME");
  if (config && plat::pathIsAbsolute(config))
    return plat::pathJoin(config, company);
  const char* home = getenv("HOME");
  if (!home || !plat::pathIsAbsolute(home))
    return plat::String();
  plat::String dotConfig = plat::pathJoin(home, ".config");
  return plat::pathJoin(dotConfig.get(), company);
}

plat::String currentLogin() {
  std::vector<char> buffer(1024);
  passwd entry{};
  passwd* found = nullptr;
  while (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
    buffer.resize(buffer.size() * 2);
  return found ? plat::String(found->pw_name) : plat::String();
}

} // namespace

ConfigStoreRoots defaultConfigStoreRoots(const char* company) {
  plat::String xdg("/etc/xdg");
  plat::String etc = plat::pathJoin("/etc", company);
  return ConfigStoreRoots{userConfigDir(company), plat::pathJoin(xdg.get(), company),
                          plat::pathJoin(etc.get(), "policies"), 0, currentLogin()};
}

bool ConfigStoreReg::exists() {
  return !preferencesFile_.isNull() && access(preferencesFile_.get(), R_OK) == 0;
}

void ConfigStoreReg::readFile(const char* path, int priority, plat::Configuration* configuration,
                              bool policy) {
  if (!path)
    return;
  plat::Handle file(open(path, O_RDONLY | O_CLOEXEC));
  if (fd(file) < 0) {
    if (errno == ENOENT || errno == ENOTDIR)
      return;
    throw plat::SystemExceptionFmt("open(%s)", errno, path);
  }
  if (policy) {
    struct stat status {};
    if (fstat(fd(file), &status) != 0)
      throw plat::SystemExceptionFmt("fstat(%s)", errno, path);
    // Anyone who may change a policy file could give the user what the
    // administrator withholds.
    if (status.st_uid != roots_.policyOwner || (status.st_mode & (S_IWGRP | S_IWOTH))) {
      storeLog.error("Ignoring policy file %s: it must belong to the administrator and be "
                     "writable by nobody else",
                     path);
      return;
    }
  }
  plat::Configuration& target = configuration ? *configuration : plat::Configuration::global();
  std::string text = readAll(fd(file), path);
  for (const ConfigEntry& entry : parseConfigText(text.c_str()))
    target.setParam(entry.first.get(), entry.second.get(), priority);
}

void ConfigStoreReg::writeValues(const std::vector<ConfigEntry>& changes) {
  const char* path = preferencesFile_.get();
  if (!path)
    throw plat::Exception("No place for the user's settings");
  for (const ConfigEntry& change : changes) {
    if (!change.second.isNull() && std::strpbrk(change.second.get(), "\r\n"))
      throw plat::Exception(
          plat::strFormat("The value of %s has a line break", change.first.get()).get());
  }
  plat::mkDirPath(plat::pathDirName(path).get());
  plat::String lockPath = plat::strFormat("%s.lock", path);
  plat::Handle lock(open(lockPath.get(), O_RDWR | O_CREAT | O_CLOEXEC, 0644));
  if (fd(lock) < 0)
    throw plat::SystemExceptionFmt("open(%s)", errno, lockPath.get());
  while (flock(fd(lock), LOCK_EX) != 0) {
    if (errno != EINTR)
      throw plat::SystemExceptionFmt("flock(%s)", errno, lockPath.get());
  }

  std::string text;
  plat::Handle current(open(path, O_RDONLY | O_CLOEXEC));
  if (fd(current) >= 0)
    text = readAll(fd(current), path);
  else if (errno != ENOENT)
    throw plat::SystemExceptionFmt("open(%s)", errno, path);
  for (const ConfigEntry& change : changes)
    text = setConfigTextValue(text.c_str(), change.first.get(), change.second.get()).get();

  // A file in the same directory, synced, then renamed over the old one.
  plat::String temporary = plat::strFormat("%s.new", path);
  {
    plat::Handle out(open(temporary.get(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    if (fd(out) < 0)
      throw plat::SystemExceptionFmt("open(%s)", errno, temporary.get());
    writeAll(fd(out), text, temporary.get());
    if (fsync(fd(out)) != 0)
      throw plat::SystemExceptionFmt("fsync(%s)", errno, temporary.get());
  }
  if (rename(temporary.get(), path) != 0)
    throw plat::SystemExceptionFmt("rename(%s)", errno, path);
}

} // namespace xnutil
