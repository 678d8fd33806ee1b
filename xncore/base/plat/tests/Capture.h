// Test helpers that catch what the code under test writes: log records through
// the process-wide sink, and text written to a stdio stream.
#pragma once

#include "plat/LogSrc.h"

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace plattest {

struct LogRecord {
  int level;
  std::string source;
  std::string text;
};

/// Collects every log record while it exists.
class LogCapture {
public:
  LogCapture() : previous_(plat::setLogSink(&LogCapture::record)) { records().clear(); }
  ~LogCapture() { plat::setLogSink(previous_); }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  /// The records of `source`, or all of them when `source` is null.
  std::vector<LogRecord> from(const char* source = nullptr) const {
    std::vector<LogRecord> selected;
    for (const LogRecord& entry : records()) {
      if (!source || entry.source == source)
        selected.push_back(entry);
    }
    return selected;
  }
  void clear() { records().clear(); }

private:
  static std::vector<LogRecord>& records() {
    static std::vector<LogRecord> all;
    return all;
  }
  static void record(int level, const char* source, const char* text) {
    records().push_back({level, source, text});
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
