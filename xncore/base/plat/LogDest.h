// plat::LogDest: where log messages go. A destination with a name joins one
// process-wide list at construction, so that the parameter "Log" can address
// it; the sources that a configuration points at it forget it again when it
// goes away.
#pragma once

#include "plat/NonCopyable.h"
#include "plat/String.h"

#include <atomic>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace plat {

class LogDest : NonCopyable {
public:
  /// `name` must have static storage; null keeps the destination off the list.
  explicit LogDest(const char* name);
  virtual ~LogDest();

  /// Takes one message; called only for levels the configuration lets through.
  virtual void write(int level, const char* sourceName, const char* text) = 0;
  /// False while the destination cannot take messages, which then wait in memory.
  virtual bool isAvailable() { return true; }

  const char* name() const noexcept { return name_; }
  LogDest* next() const noexcept { return next_; }
  /// The upper limit of levels that this destination takes.
  int level() const noexcept { return level_.load(std::memory_order_relaxed); }

protected:
  void setLevel(int level) noexcept { level_.store(level, std::memory_order_relaxed); }

private:
  const char* name_;
  LogDest* next_ = nullptr;
  std::atomic<std::int32_t> level_{INT32_MAX};
};

/// A message kept for later: by the memory destination until it is replayed,
/// by the IPC destination until it is sent.
struct LogRecord {
  int level;
  String source;
  String text;
};

/// Appends a record to a bounded store of `limit` records: the record while
/// there is room, then once a marker at level 0 from `marker` that says the
/// rest is discarded; after that nothing.
void keepBounded(std::vector<LogRecord>& records, std::size_t limit, int level, const char* source,
                 const char* text, const char* marker);

/// The syslog severity of a level: 3 for errors (0 and below), 4 for 1 to 5,
/// 5 for 6 to 10, 6 for 11 to 30, 7 above.
int logSeverity(int level) noexcept;

/// The most recently constructed named destination, head of the list.
LogDest* firstLogDest() noexcept;

/// The named destination `name`, compared without regard to case, or null.
LogDest* findLogDest(const char* name) noexcept;

/// Prints one line "  <name>" for each named destination.
void listLogDests(std::FILE* stream);

} // namespace plat
