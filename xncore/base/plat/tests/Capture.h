// Test helpers that catch what the code under test writes: log records through
// the process-wide sink, and text written to a stdio stream.
#pragma once

#include "plat/LogSrc.h"

#include <cstdio>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace plattest {

/// Collects every log record while it exists, from any thread.
class LogCapture {
public:
  LogCapture() : previous_(plat::setLogSink(&LogCapture::record)) {
    std::lock_guard lock(mutex());
    records().clear();
  }
  ~LogCapture() { plat::setLogSink(previous_); }

  /// The records of `source`, each as "<level> <text>".
  std::vector<std::string> lines(const char* source) const {
    std::lock_guard lock(mutex());
    std::vector<std::string> selected;
    for (const auto& [from, line] : records())
      if (from == source)
        selected.push_back(line);
    return selected;
  }

private:
  static std::vector<std::pair<std::string, std::string>>& records() {
    static std::vector<std::pair<std::string, std::string>> all;
    return all;
  }
  static std::mutex& mutex() {
    static std::mutex records;
    return records;
  }
  static void record(int level, const char* source, const char* text) {
    std::lock_guard lock(mutex());
    records().emplace_back(source, std::to_string(level) + " " + text);
  }

  plat::LogSink previous_;
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
