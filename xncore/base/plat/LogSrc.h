// plat::LogSrc: a named source of log messages, declared as a static object
// beside the code that writes to it. Every source registers at the head of one
// process-wide list, so the list is in reverse order of construction and can
// be built in any order of static initialisation.
//
// The parameter "Log" points sources at destinations (LogConfig.h). Until
// logging is set up every message is formatted, and one that no destination
// takes waits in the memory destination for a configuration that wants it.
#pragma once

#include "plat/Compiler.h"
#include "plat/LogConfig.h"
#include "plat/NonCopyable.h"

#include <atomic>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

namespace plat {

class LogDest;

namespace detail {
extern std::atomic<bool> logInitialised;
}

/// True once logInit() has run; from then on a message that no destination
/// wants is dropped before it is formatted.
inline bool logInitialised() noexcept {
  return detail::logInitialised.load(std::memory_order_relaxed);
}

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
  int level() const noexcept { return level_.load(std::memory_order_relaxed); }
  /// True when a message of `level` would be formatted and passed on.
  bool passes(int level) const noexcept { return level <= this->level() || !logInitialised(); }

  void error(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void info(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void debug(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void trace(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void write(int level, const char* format, ...) XN_PRINTF_FORMAT(3, 4);
  void writeV(int level, const char* format, va_list args) XN_PRINTF_FORMAT(3, 0);
  /// Writes each non-empty line of `text` as a message of its own.
  void writeLines(int level, const char* text);

  /// Sends messages up to `level` to `dest`, replacing an earlier level for it.
  /// Call updateLevel() afterwards.
  void setDest(LogDest* dest, int level);
  /// Forgets `dest` and updates the level.
  void removeDest(LogDest* dest);
  /// Forgets every destination and lets nothing pass until updateLevel().
  void clearDests();
  /// The level becomes the highest, over the destinations, of the smaller of
  /// the entry's level and the destination's own limit; -1 without any.
  virtual void updateLevel();

  /// The most recently constructed source, head of the process-wide list.
  static LogSrc* first() noexcept;
  LogSrc* next() const noexcept { return next_; }

private:
  void checkConstructed() const noexcept;
  void deliver(int level, const char* text);

  const char* name_;
  // Read by every thread that logs and written only by configuration, which
  // happens on one thread; the destination map is not locked at all.
  std::atomic<std::int32_t> level_{INT32_MAX};
  std::map<LogDest*, std::int32_t> dests_;
  LogSrc* next_;
  // Zero in static storage until the constructor runs, so that a source used
  // by another translation unit's static initialiser is caught.
  bool constructed_ = false;
};

/// The source with `name`, compared without regard to case, or null.
LogSrc* findLogSrc(const char* name) noexcept;

/// Prints the source names for help, comma-separated, in lines of at most
/// `width` columns, each line indented by two spaces.
void listLogNames(int width, std::FILE* stream);

} // namespace plat
