#include "plat/File.h"

#include "plat/Exception.h"
#include "plat/LogSrc.h"
#include "rdr/EndOfStream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

namespace plat {

namespace {

LogSrc fileLog("File");

const char* openMode(int mode, int flags) noexcept {
  bool append = flags & fileFlagAppend;
  if (mode == fileModeRead)
    return "rb";
  if (mode == fileModeWrite)
    return append ? "ab" : "wb";
  if (append)
    return "a+b";
  return flags & fileFlagTruncate ? "w+b" : "r+b";
}

// A standard stream stands in for "-".
std::FILE* standardStream(int mode, int flags) {
  if (mode == fileModeUpdate)
    throw Exception("Invalid mode for stdin/stdout");
  std::FILE* stream = mode == fileModeRead ? stdin : stdout;
  if (!(flags & fileFlagTextMode)) {
    if (stream == stdout)
      std::fflush(stdout);
    setStreamBinary(stream);
  }
  return stream;
}

} // namespace

File::File(const char* path, int mode, int flags) {
  open(path, mode, flags);
}

File::~File() {
  if (!ownsStream_ || !stream_)
    return;
  if (std::fclose(stream_) != 0 && logCloseFailure_)
    fileLog.error("Error closing file: %s", StdlibException("fclose").what());
}

void File::open(const char* path, int mode, int flags) {
  if (std::strcmp(path, "-") == 0) {
    attach(standardStream(mode, flags), false);
    return;
  }
  std::FILE* stream = fileOpenStream(path, openMode(mode, flags));
  if (!stream)
    throw SystemExceptionFmt("fileOpen(%s)", errno, path);
  try {
    attach(stream, true);
  } catch (...) {
    std::fclose(stream);
    throw;
  }
}

void File::attach(std::FILE* stream, bool owned) {
  std::FILE* old = stream_;
  bool ownedOld = ownsStream_;
  stream_ = stream;
  ownsStream_ = owned;
  if (ownedOld && old && std::fclose(old) != 0)
    throw StdlibException("fclose");
}

void File::close() {
  attach(nullptr, false);
}

std::size_t File::read(void* buffer, std::size_t size) {
  if (size == 0)
    return 0;
  std::size_t got = std::fread(buffer, 1, size, stream_);
  if (got > 0)
    return got;
  if (std::ferror(stream_))
    throw StdlibException("reading from file failed");
  throw rdr::EndOfStream("End of file");
}

MBuf<unsigned char> File::readAll(std::int32_t maxSize) {
  std::int64_t size = fileStreamSize(stream_);
  if (size > maxSize)
    throw Exception(formatted, "Error: file is too large (%lld > %d)", static_cast<long long>(size),
                    maxSize);
  // A file whose size is unknown (a pipe, a terminal) is read until its end.
  // One byte more than the size, so that the first read already meets the end.
  MBuf<unsigned char> content(size >= 0 ? static_cast<std::int32_t>(std::min<std::int64_t>(
                                              size + 1, std::numeric_limits<std::int32_t>::max()))
                                        : 4096);
  std::int64_t used = 0;
  for (;;) {
    if (used == content.length())
      content.resize(content.length() <= std::numeric_limits<std::int32_t>::max() / 2
                         ? content.length() * 2
                         : std::numeric_limits<std::int32_t>::max());
    std::size_t room = static_cast<std::size_t>(content.length() - used);
    std::size_t got = std::fread(content.data() + used, 1, room, stream_);
    used += static_cast<std::int64_t>(got);
    if (used > maxSize)
      throw Exception(formatted, "Error: file is too large (%lld > %d)",
                      static_cast<long long>(used), maxSize);
    if (got < room)
      break;
  }
  if (used == 0)
    throw StdlibException(std::ferror(stream_) ? errno : 0, "Reading from file failed");
  if (std::ferror(stream_))
    throw StdlibException("Reading from file failed");
  content.resize(static_cast<std::int32_t>(used));
  return content;
}

bool File::readLine(DString& line) {
  line.ensure(128);
  line.clear();
  int used = 0;
  bool readAny = false;
  // fgets stops at the line feed or when the buffer is full; a full buffer
  // without a line feed doubles and goes on.
  while (std::fgets(line.data() + used, line.capacity() - used, stream_)) {
    readAny = true;
    used += static_cast<int>(std::strlen(line.data() + used));
    if (used > 0 && line.data()[used - 1] == '\n') {
      line.data()[used - 1] = '\0';
      break;
    }
    if (used == line.capacity() - 1)
      line.ensure(line.capacity() * 2);
  }
  if (std::ferror(stream_))
    throw SystemException("Error reading from file", errno);
  if (!readAny)
    return false;
  line.makeValidUtf8();
  return true;
}

void File::write(const void* data, std::size_t size) {
  if (std::fwrite(data, 1, size, stream_) != size)
    throw StdlibException("writing to file failed");
}

void File::flush() {
  if (std::fflush(stream_) != 0)
    throw StdlibException("fflush");
}

} // namespace plat
