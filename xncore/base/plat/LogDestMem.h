// plat::LogDestMem: the messages that no destination could take yet. Until
// logging is set up, and while a configured destination is not available, a
// message waits here; a configuration that wants it replays it into its
// destination. The store is bounded, so that a process that never sets up
// logging does not grow without end.
#pragma once

#include "plat/LogDest.h"

#include <cstddef>
#include <mutex>
#include <vector>

namespace plat {

class LogDestMem : public LogDest {
public:
  /// Messages kept before the marker that says the rest is discarded.
  static constexpr std::size_t limit = 500;

  /// The one instance, built on first use and never destroyed, since sources
  /// may write during the destruction of other static objects.
  static LogDestMem& instance();

  /// Stores the message; the 501st becomes a marker, later ones are dropped.
  /// Does nothing while replaying.
  void write(int level, const char* sourceName, const char* text) override;

  /// Writes every stored message of at most `level`, in order, into `dest`,
  /// between a start and an end line from source "LogDestMem" at `level`.
  void replay(LogDest& dest, int level);
  /// Drops the stored messages of at most `level`.
  void removeUpTo(int level);
  void clear();
  std::size_t size();

private:
  LogDestMem() : LogDest(nullptr) {}

  // Recursive, so that a message written on the replaying thread meets the
  // replaying_ flag instead of blocking on itself.
  std::recursive_mutex lock_;
  std::vector<LogRecord> messages_;
  bool replaying_ = false;
};

} // namespace plat
