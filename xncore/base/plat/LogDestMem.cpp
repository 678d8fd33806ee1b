#include "plat/LogDestMem.h"

#include <algorithm>

namespace plat {

namespace {
constexpr const char* memorySource = "LogDestMem";
}

LogDestMem& LogDestMem::instance() {
  static LogDestMem* const memory = new LogDestMem();
  return *memory;
}

void LogDestMem::write(int level, const char* sourceName, const char* text) {
  std::lock_guard<std::recursive_mutex> hold(lock_);
  if (replaying_)
    return;
  keepBounded(messages_, limit, level, sourceName, text, memorySource);
}

void LogDestMem::replay(LogDest& dest, int level) {
  std::lock_guard<std::recursive_mutex> hold(lock_);
  replaying_ = true;
  bool started = false;
  for (const LogRecord& message : messages_) {
    if (message.level > level)
      continue;
    if (!started) {
      dest.write(level, memorySource, "Start replaying stored messages");
      started = true;
    }
    dest.write(message.level, message.source.get(), message.text.get());
  }
  if (started)
    dest.write(level, memorySource, "Finished replaying stored messages");
  replaying_ = false;
}

void LogDestMem::removeUpTo(int level) {
  std::lock_guard<std::recursive_mutex> hold(lock_);
  std::erase_if(messages_, [level](const LogRecord& message) { return message.level <= level; });
}

void LogDestMem::clear() {
  std::lock_guard<std::recursive_mutex> hold(lock_);
  messages_.clear();
}

std::size_t LogDestMem::size() {
  std::lock_guard<std::recursive_mutex> hold(lock_);
  return messages_.size();
}

} // namespace plat
