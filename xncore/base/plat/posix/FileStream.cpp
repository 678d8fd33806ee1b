#include "plat/Exception.h"
#include "plat/File.h"

#include <errno.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plat {

std::FILE* fileOpenStream(const char* path, const char* mode) noexcept {
  // The paths are UTF-8 already; "e" opens with O_CLOEXEC so that a child
  // process inherits no file of ours.
  char closeOnExec[8];
  snprintf(closeOnExec, sizeof closeOnExec, "%se", mode);
  return fopen(path, closeOnExec);
}

// POSIX streams make no difference between text and binary.
void setStreamBinary(std::FILE*) noexcept {}

std::int64_t fileStreamSize(std::FILE* stream) noexcept {
  struct stat info;
  if (fstat(fileno(stream), &info) != 0 || !S_ISREG(info.st_mode))
    return -1;
  return info.st_size;
}

void fileSeek(std::FILE* stream, std::int64_t offset, int origin) {
  if (fseeko(stream, static_cast<off_t>(offset), origin) != 0)
    throw SystemException("fileSeek", errno);
}

std::int64_t fileTell(std::FILE* stream) {
  off_t position = ftello(stream);
  if (position < 0)
    throw SystemException("fileTell", errno);
  return position;
}

void fileTruncate(std::FILE* stream, std::int64_t size) {
  // Buffered writes must reach the file before its length changes.
  if (fflush(stream) != 0)
    throw SystemException("fileTruncate(fflush)", errno);
  if (ftruncate(fileno(stream), static_cast<off_t>(size)) != 0)
    throw SystemException("fileTruncate(ftruncate)", errno);
}

} // namespace plat
