// Test helpers that catch what the code under test writes: log records through
// a destination that every source writes to, and text written to a stdio stream.
#pragma once

#include "plat/LogDest.h"
#include "plat/LogSrc.h"

#include <climits>
#include <cstdio>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace plattest {

/// Collects every log record, of every level and source, while it exists.
class LogCapture : public plat::LogDest {
public:
  LogCapture() : LogDest(nullptr) { plat::attachLogDest("*", this, INT_MAX); }

  void write(int level, const char* source, const char* text) override {
    std::lock_guard<std::mutex> hold(lock_);
    records_.emplace_back(source, std::to_string(level) + " " + text);
  }

  /// The records of `source`, each as "<level> <text>".
  std::vector<std::string> lines(const char* source) const {
    std::lock_guard<std::mutex> hold(lock_);
    std::vector<std::string> selected;
    for (const auto& [from, line] : records_)
      if (from == source)
        selected.push_back(line);
    return selected;
  }

private:
  mutable std::mutex lock_;
  std::vector<std::pair<std::string, std::string>> records_;
};

/// What `write` puts into a stream.
inline std::string captureStream(const std::function<void(std::FILE*)>& write) {
  std::FILE* stream = std::tmpfile();
  write(stream);
  std::string text;
  std::rewind(stream);
  char buffer[4096];
  for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, stream)) > 0;)
    text.append(buffer, got);
  std::fclose(stream);
  return text;
}

} // namespace plattest
