#include "plat/LogDestIpc.h"

#include "plat/BoundedAppend.h"
#include "plat/LogSrc.h"

namespace plat {

namespace {

constexpr std::size_t maxSourceBytes = 255;
constexpr std::size_t maxTextBytes = 1024;

// Named at static initialisation, so that "-help all" lists it.
[[maybe_unused]] LogDestIpc& registered = LogDestIpc::instance();

} // namespace

LogDestIpc& LogDestIpc::instance() {
  static LogDestIpc* const ipc = new LogDestIpc();
  return *ipc;
}

void LogDestIpc::write(int level, const char* sourceName, const char* text) {
  std::lock_guard<std::mutex> hold(lock_);
  if (level > this->level())
    return;
  if (messages_.size() > limit)
    return;
  keepBounded(messages_, limit, level, sourceName, text, "LogDestIpc");
  if (channel_ && connected_)
    channel_->signal();
}

void LogDestIpc::setChannel(Channel* channel, const char* prefix) {
  std::lock_guard<std::mutex> hold(lock_);
  channel_ = channel;
  prefix_ = String(prefix);
  connected_ = false;
}

void LogDestIpc::setCollectorLevel(int level) {
  {
    std::lock_guard<std::mutex> hold(lock_);
    setLevel(level);
    connected_ = true;
  }
  for (LogSrc* source = LogSrc::first(); source; source = source->next())
    source->updateLevel();
  flush();
}

void LogDestIpc::flush() {
  std::vector<LogRecord> pending;
  Channel* channel;
  String prefix;
  {
    std::lock_guard<std::mutex> hold(lock_);
    if (!connected_ || !channel_)
      return;
    pending.swap(messages_);
    channel = channel_;
    prefix = prefix_;
  }
  for (const LogRecord& message : pending) {
    if (message.level > level())
      continue;
    char source[maxSourceBytes + 1] = "";
    if (!prefix.isNull())
      appendBoundedFormat(source, sizeof source, "%s: %s", prefix.get(), message.source.get());
    else
      appendBounded(source, sizeof source, message.source.get());
    char text[maxTextBytes + 1] = "";
    appendBounded(text, sizeof text, message.text.get());
    channel->sendLogMsg(message.level, source, text);
  }
  channel->flushOutput();
}

std::size_t LogDestIpc::pendingCount() {
  std::lock_guard<std::mutex> hold(lock_);
  return messages_.size();
}

} // namespace plat
