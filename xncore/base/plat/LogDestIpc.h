// plat::LogDestIpc: the destination "ipc", log lines for another process that
// collects them over the message channel. Any thread may write: a message is
// only queued, under the lock, and a bounded queue keeps a process without a
// collector from growing. The channel brings the queue to the collector on
// its own thread, through flush(), once the collector has said which level it
// wants to hear.
#pragma once

#include "plat/LogDest.h"

#include <cstddef>
#include <mutex>
#include <vector>

namespace plat {

class LogDestIpc : public LogDest {
public:
  /// The connection to the collector, supplied by the message channel.
  class Channel {
  public:
    virtual ~Channel() = default;
    /// Sends one framed "logMsg"; `source` is at most 255 bytes, `text` at most 1024.
    virtual void sendLogMsg(int level, const char* source, const char* text) = 0;
    /// Pushes what was sent out of the stream's buffer.
    virtual void flushOutput() = 0;
    /// Wakes the channel's thread, which then calls flush().
    virtual void signal() = 0;
  };

  /// Pending messages before the marker that says the rest is discarded.
  static constexpr std::size_t limit = 1000;

  /// The one instance, never destroyed: the assertion path flushes it at any time.
  static LogDestIpc& instance();

  /// Queues the message when its level is at most this destination's level.
  void write(int level, const char* sourceName, const char* text) override;

  /// Uses `channel` (null for none) from now on; `prefix`, when not null,
  /// goes before every source name as "<prefix>: <source>". Messages are held
  /// until the collector has given its level.
  void setChannel(Channel* channel, const char* prefix);
  /// The collector's "setLogLevel": takes `level` as this destination's
  /// limit, updates every source and sends what is pending.
  void setCollectorLevel(int level);
  /// Sends the pending messages of at most this destination's level, once
  /// the collector is connected.
  void flush();

  std::size_t pendingCount();

private:
  LogDestIpc() : LogDest("ipc") {}

  std::mutex lock_;
  std::vector<LogRecord> messages_;
  Channel* channel_ = nullptr;
  bool connected_ = false;
  String prefix_;
};

} // namespace plat
