// plat::LogDestFile: text lines to a stream or to a named file. The
// destination "stderr" writes to standard error; "file" writes to the file
// that the parameters "LogDir" and "LogFile" name, once file logging is
// enabled. A file is opened at the first line, after the rotation of its
// directory, and closed for good when it reaches its size limit.
//
// A line is "<priority> <UTC time> <host> <app>[<pid>]: <source>: <text>",
// or "<local time> <source>: <text>" with "CompactLog".
#pragma once

#include "plat/DString.h"
#include "plat/File.h"
#include "plat/LogDest.h"
#include "plat/String.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <mutex>

namespace plat {

class LogDestFile : public LogDest {
public:
  /// Writes to `stream`, not owned, or, when that is null, to the file given
  /// by setPath. `appName` goes into every full line.
  LogDestFile(const char* name, const char* appName, std::FILE* stream);
  ~LogDestFile() override;

  /// Writes one line; a file that cannot be opened drops it.
  void write(int level, const char* sourceName, const char* text) override;
  /// True when a stream or a path is set, even when the file cannot be
  /// opened, so that its messages do not pile up in memory.
  bool isAvailable() override { return available_.load(std::memory_order_relaxed); }

  /// Moves to another file (null for none): the current one is closed when
  /// the path differs, and the next line opens the new one under a new banner.
  void setPath(const char* path);
  /// Closes the file once it holds `bytes` (0: no limit), and opens it again
  /// if the limit had closed it.
  void setMaxSize(std::int64_t bytes);
  /// Called after the size limit has closed the file.
  void setOnFull(std::function<void()> onFull);

private:
  bool openFile();
  void writeBanner(std::FILE* out);
  void closeFile() noexcept;

  String appName_;
  String hostName_;
  std::int64_t processId_;
  std::mutex lock_;
  String path_;
  DString timeText_;
  File file_;
  std::FILE* givenStream_;
  bool closed_ = false;
  std::int64_t maxSize_ = 0;
  std::function<void()> onFull_;
  bool bannerDone_ = false;
  bool useColour_ = false;
  std::atomic<bool> available_;
};

/// Creates the destination "stderr" on standard error, once.
void initLogDestStderr(const char* appName);
/// Creates the destination "file" without a stream, once, with the manager
/// that follows "LogDir" and "LogFile" while file logging is enabled.
void initLogDestFile(const char* appName, bool enable);
/// Switches file logging on (the file follows the parameters) or off (closed).
void enableLogFile(bool enable);
/// Whether opening a log file makes standard error write into it too.
void setLogRedirectStderr(bool redirect);
/// The text written, wrapped at 79 columns, at the top of each file.
void setLogBanner(const char* text);

/// The file that "LogDir" and "LogFile" name after expanding variables: an
/// absolute file name as it stands, otherwise inside the directory.
String logFilePath();

} // namespace plat
