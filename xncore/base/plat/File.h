// plat::File holds a C library stream, opened here by UTF-8 path or handed in.
// Reading raises rather than returning codes: rdr::EndOfStream at the end of
// the file, StdlibException for errors. The destructor closes an owned stream
// and logs a failure to close instead of raising it.
#pragma once

#include "plat/DString.h"
#include "plat/FileSystem.h"
#include "plat/MBuf.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace plat {

// Flags of File::open.
inline constexpr int fileFlagAppend = 1;   ///< writes go to the end
inline constexpr int fileFlagTruncate = 4; ///< update mode empties the file first
inline constexpr int fileFlagTextMode = 8; ///< leave a standard stream in text mode

class File {
public:
  File() noexcept = default;
  /// open(path, mode, flags).
  File(const char* path, int mode, int flags = 0);
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File();

  /// Opens `path` with fileModeRead, fileModeWrite or fileModeUpdate, closing
  /// the current stream first. Update wants an existing file unless it
  /// truncates or appends. "-" is standard input for reading and standard
  /// output for writing, neither owned; update on it raises Exception
  /// "Invalid mode for stdin/stdout". Raises SystemException "fileOpen(<path>)".
  void open(const char* path, int mode, int flags = 0);
  /// Takes `stream`, closing the current one first if owned; raises
  /// StdlibException "fclose" when that fails.
  void attach(std::FILE* stream, bool owned);
  /// Closes an owned stream and forgets any stream; raises StdlibException "fclose".
  void close();

  std::FILE* stream() const noexcept { return stream_; }
  bool isOpen() const noexcept { return stream_ != nullptr; }
  /// Whether the destructor logs a failure to close, on source "File".
  void setLogCloseFailure(bool log) noexcept { logCloseFailure_ = log; }

  /// Reads up to `size` bytes and returns how many, at least 1. Raises
  /// rdr::EndOfStream "End of file" at the end and StdlibException "reading
  /// from file failed" on errors.
  std::size_t read(void* buffer, std::size_t size);
  /// The whole rest of the file. Raises Exception "Error: file is too large
  /// (<size> > <maxSize>)" beyond `maxSize` bytes and StdlibException "Reading
  /// from file failed" when nothing could be read, so an empty file too.
  MBuf<unsigned char> readAll(std::int32_t maxSize);
  /// Replaces `line` with the next line, of any length, without its line feed
  /// and repaired as UTF-8 (a NUL byte ends the line's text early). False at
  /// the end of the file; raises SystemException "Error reading from file".
  bool readLine(DString& line);
  /// Writes all of `data`; raises StdlibException "writing to file failed".
  void write(const void* data, std::size_t size);
  /// Raises StdlibException "fflush".
  void flush();

private:
  bool ownsStream_ = false;
  bool logCloseFailure_ = true;
  std::FILE* stream_ = nullptr;
};

// The platform's side of streams.

/// Opens a stream by UTF-8 path with an fopen mode; null with errno set on failure.
std::FILE* fileOpenStream(const char* path, const char* mode) noexcept;
/// Switches a standard stream to binary mode where the platform knows text mode.
void setStreamBinary(std::FILE* stream) noexcept;
/// Bytes of the regular file behind `stream`, or -1 when it is not one.
std::int64_t fileStreamSize(std::FILE* stream) noexcept;

/// 64-bit positioning with SEEK_SET, SEEK_CUR or SEEK_END; raises SystemException "fileSeek".
void fileSeek(std::FILE* stream, std::int64_t offset, int origin);
/// Raises SystemException "fileTell".
std::int64_t fileTell(std::FILE* stream);
/// Cuts or extends the file to `size` bytes, keeping the position; raises
/// SystemException "fileTruncate(<step>)" naming the step that failed.
void fileTruncate(std::FILE* stream, std::int64_t size);

} // namespace plat
