// plat::LogSrc: a named source of log messages, declared as a static object
// beside the code that writes to it. Every source registers at the head of one
// process-wide list, so the list is in reverse order of construction and can
// be built in any order of static initialisation.
//
// This is the part of logging that the rest of the base needs today: sources,
// levels and the formatting of a record. The destinations ("stderr", "file",
// "debug", memory and IPC), the parameter-driven `Log` configuration and the
// replay of early messages come with the logging library; until then a
// formatted record goes to one replaceable process-wide sink.
#pragma once

#include "plat/Compiler.h"
#include "plat/NonCopyable.h"

#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdio>

namespace plat {

class LogSrc : NonCopyable {
public:
  static constexpr int levelError = 0;
  static constexpr int levelInfo = 30;
  static constexpr int levelDebug = 100;
  static constexpr int levelTrace = 110;

  /// `name` must have static storage; it is kept as a pointer.
  explicit LogSrc(const char* name);
  virtual ~LogSrc();

  const char* name() const noexcept { return name_; }
  /// The highest level that any destination of this source takes.
  int level() const noexcept { return level_; }
  /// True when a message of `level` would be written.
  bool passes(int level) const noexcept { return level <= level_; }

  void error(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void info(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void debug(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void trace(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void write(int level, const char* format, ...) XN_PRINTF_FORMAT(3, 4);
  void writeV(int level, const char* format, va_list args) XN_PRINTF_FORMAT(3, 0);
  /// Writes each non-empty line of `text` as a message of its own.
  void writeLines(int level, const char* text);

  /// The most recently constructed source, head of the process-wide list.
  static LogSrc* first() noexcept;
  LogSrc* next() const noexcept { return next_; }

private:
  void checkConstructed() const noexcept;
  void deliver(int level, const char* text);

  const char* name_;
  std::int32_t level_ = INT32_MAX;
  LogSrc* next_;
  // Zero in static storage until the constructor runs, so that a source used
  // by another translation unit's static initialiser is caught.
  bool constructed_ = false;
};

/// The receiver of formatted records until destinations exist.
using LogSink = void (*)(int level, const char* source, const char* text);

/// Installs `sink` (null drops records, the default) and returns the previous one.
LogSink setLogSink(LogSink sink) noexcept;

/// The source with `name`, compared without regard to case, or null.
LogSrc* findLogSrc(const char* name) noexcept;

/// Prints the source names for help, comma-separated, in lines of at most
/// `width` columns, each line indented by two spaces.
void listLogNames(int width, std::FILE* stream);

/// Prints one line "  <name>" for each named destination.
void listLogDests(std::FILE* stream);

} // namespace plat
