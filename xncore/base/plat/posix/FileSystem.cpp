#include "plat/FileSystem.h"

#include "plat/Calendar.h"
#include "plat/DString.h"
#include "plat/Exception.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plat {

namespace {

constexpr mode_t directoryMode = 0755;
constexpr mode_t privateDirectoryMode = 0700;

// "Not found" in any of its forms: the last element is missing (ENOENT), or
// an element on the way is not a directory (ENOTDIR).
bool isNotFound(int code) noexcept {
  return code == ENOENT || code == ENOTDIR;
}

struct stat statOrThrow(const char* path, const char* operation) {
  struct stat info;
  if (stat(path, &info) != 0)
    throw SystemExceptionFmt("%s(%s)", errno, operation, path);
  return info;
}

const char* orNone(const char* path) noexcept {
  return path ? path : "<none>";
}

[[noreturn]] void throwTransferFailure(const char* verb, const char* from, const char* to,
                                       int code) {
  throw Exception(formatted, "Cannot %s file (from:%s to:%s): 0x%x", verb, orNone(from), orNone(to),
                  static_cast<unsigned>(code));
}

// Restarts a call that a signal interrupted.
template <class Call>
auto retryInterrupted(Call call) {
  decltype(call()) result;
  do
    result = call();
  while (result < 0 && errno == EINTR);
  return result;
}

// Copies the content of `from` into `to`; an errno value on failure, else 0.
int copyContent(const char* from, const char* to) noexcept {
  int source = retryInterrupted([&] { return open(from, O_RDONLY | O_CLOEXEC); });
  if (source < 0)
    return errno;
  struct stat info;
  int status = fstat(source, &info) == 0 ? 0 : errno;
  int target = -1;
  if (status == 0) {
    target = retryInterrupted(
        [&] { return open(to, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, info.st_mode & 07777); });
    if (target < 0)
      status = errno;
  }
  char buffer[65536];
  while (status == 0) {
    ssize_t got = retryInterrupted([&] { return read(source, buffer, sizeof buffer); });
    if (got <= 0) {
      status = got < 0 ? errno : 0;
      break;
    }
    for (ssize_t done = 0; done < got && status == 0;) {
      ssize_t put = retryInterrupted(
          [&] { return write(target, buffer + done, static_cast<std::size_t>(got - done)); });
      if (put < 0)
        status = errno;
      else
        done += put;
    }
  }
  if (target >= 0 && close(target) != 0 && status == 0)
    status = errno;
  close(source);
  return status;
}

} // namespace

bool fileExists(const char* path) {
  struct stat info;
  if (stat(path, &info) == 0)
    return true;
  if (isNotFound(errno))
    return false;
  throw SystemExceptionFmt("fileExists(%s)", errno, path);
}

bool isDirectory(const char* path) {
  struct stat info;
  if (stat(path, &info) == 0)
    return S_ISDIR(info.st_mode);
  if (isNotFound(errno))
    return false;
  throw SystemExceptionFmt("isDirectory(%s)", errno, path);
}

std::int64_t fileGetSize(const char* path) {
  return statOrThrow(path, "fileGetSize").st_size;
}

Ticks fileGetTime(const char* path) {
  struct stat info = statOrThrow(path, "fileGetTime");
  return unixToTicks(info.st_mtim.tv_sec, info.st_mtim.tv_nsec);
}

int fileOpenFd(const char* path, int mode, int permissions) {
  int flags = O_CLOEXEC;
  if (mode == fileModeRead)
    flags |= O_RDONLY;
  else if (mode == fileModeWrite)
    flags |= O_WRONLY | O_CREAT | O_TRUNC;
  else
    flags |= O_RDWR | O_CREAT;
  int fd = retryInterrupted([&] { return open(path, flags, static_cast<mode_t>(permissions)); });
  if (fd < 0)
    throw SystemExceptionFmt("fileOpenFd(%s)", errno, path);
  return fd;
}

// rename(2) replaces an existing file atomically, so the delete-and-retry that
// other systems need is not required here.
void fileRename(const char* from, const char* to) {
  if (rename(from, to) != 0)
    throw SystemExceptionFmt("fileRename(%s,%s)", errno, from, to);
}

void fileCopy(const char* from, const char* to) {
  int status = from && to ? copyContent(from, to) : EINVAL;
  if (status != 0)
    throwTransferFailure("copy", from, to, status);
}

void fileMove(const char* from, const char* to) {
  if (!from || !to)
    throwTransferFailure("move", from, to, EINVAL);
  if (rename(from, to) == 0)
    return;
  // rename(2) cannot cross file systems; a copy and a delete stand in for it.
  if (errno != EXDEV)
    throwTransferFailure("rename", from, to, errno);
  int status = copyContent(from, to);
  if (status == 0 && unlink(from) != 0)
    status = errno;
  if (status != 0)
    throwTransferFailure("move", from, to, status);
}

void fileDelete(const char* path) {
  if (unlink(path) != 0)
    throw Exception(formatted, "Cannot delete file (%s): 0x%x", path, static_cast<unsigned>(errno));
}

bool mkDir(const char* path, bool existingIsFine, bool fixPermissions) {
  if (mkdir(path, directoryMode) == 0)
    return true;
  int code = errno;
  if (code != EEXIST || !existingIsFine || !isDirectory(path))
    throw SystemExceptionFmt("mkDir(%s)", code, path);
  if (fixPermissions && chmod(path, directoryMode) != 0)
    throw SystemExceptionFmt("mkDir(%s)", errno, path);
  return false;
}

bool makePrivateDir(const char* path) {
  // lstat, so that a link to someone else's directory is not taken for ours.
  struct stat info;
  if (lstat(path, &info) == 0) {
    if (S_ISDIR(info.st_mode) && info.st_uid == geteuid()) {
      if (chmod(path, privateDirectoryMode) != 0)
        throw SystemExceptionFmt("makePrivateDir(%s)", errno, path);
      return false;
    }
    DString bad(path);
    bad.append(".bad");
    fileRename(path, bad.get());
  } else if (!isNotFound(errno)) {
    throw SystemExceptionFmt("makePrivateDir(%s)", errno, path);
  }
  if (mkdir(path, privateDirectoryMode) != 0)
    throw SystemExceptionFmt("makePrivateDir(%s)", errno, path);
  return true;
}

void chDir(const char* path) {
  if (chdir(path) != 0)
    throw SystemExceptionFmt("chDir(%s)", errno, path);
}

String getCurrentDir() {
  for (std::size_t size = 256;; size *= 2) {
    char* block = new char[size];
    if (getcwd(block, size))
      return String::adopt(block);
    int code = errno;
    delete[] block;
    if (code != ERANGE)
      throw SystemException("getcwd", code);
  }
}

} // namespace plat
