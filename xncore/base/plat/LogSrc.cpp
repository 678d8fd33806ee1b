#include "plat/LogSrc.h"

#include "plat/Assertion.h"
#include "plat/BoundedAppend.h"
#include "plat/NameCompare.h"
#include "plat/String.h"
#include "plat/utf8.h"

#include <atomic>
#include <cstring>

namespace plat {

namespace {

// Built on first use, since sources register from static initialisers of any
// translation unit.
LogSrc*& listHead() noexcept {
  static LogSrc* head = nullptr;
  return head;
}

std::atomic<LogSink> currentSink{nullptr};

// A record is passed on as it stands unless it holds a control character,
// a byte outside ASCII or the escape character itself.
bool needsEscaping(const char* text) noexcept {
  for (const char* cursor = text; *cursor; ++cursor) {
    auto byte = static_cast<unsigned char>(*cursor);
    if (byte < 32 || byte >= 127 || byte == '~')
      return true;
  }
  return false;
}

} // namespace

LogSrc::LogSrc(const char* name) : name_(name), next_(listHead()) {
  listHead() = this;
  constructed_ = true;
}

LogSrc::~LogSrc() {
  constructed_ = false;
  for (LogSrc** link = &listHead(); *link; link = &(*link)->next_) {
    if (*link == this) {
      *link = next_;
      break;
    }
  }
}

LogSrc* LogSrc::first() noexcept {
  return listHead();
}

#define XN_LOG_AT(level)                                                                           \
  va_list args;                                                                                    \
  va_start(args, format);                                                                          \
  writeV(level, format, args);                                                                     \
  va_end(args)

void LogSrc::error(const char* format, ...) {
  XN_LOG_AT(levelError);
}
void LogSrc::info(const char* format, ...) {
  XN_LOG_AT(levelInfo);
}
void LogSrc::debug(const char* format, ...) {
  XN_LOG_AT(levelDebug);
}
void LogSrc::trace(const char* format, ...) {
  XN_LOG_AT(levelTrace);
}
void LogSrc::write(int level, const char* format, ...) {
  XN_LOG_AT(level);
}

#undef XN_LOG_AT

void LogSrc::writeV(int level, const char* format, va_list args) {
  checkConstructed();
  if (!passes(level))
    return;
  char text[4096];
  text[0] = '\0';
  appendBoundedFormatV(text, sizeof text, format, args);
  deliver(level, text);
}

void LogSrc::writeLines(int level, const char* text) {
  checkConstructed();
  if (!text || !passes(level))
    return;
  while (*text) {
    std::size_t length = std::strcspn(text, "\n");
    if (length > 0) {
      char line[4096];
      line[0] = '\0';
      appendBounded(line, sizeof line, text, static_cast<int>(length));
      deliver(level, line);
    }
    text += length;
    if (*text == '\n')
      ++text;
  }
}

void LogSrc::checkConstructed() const noexcept {
  if (!constructed_)
    assertionFailed(AssertionFail("constructed", __FILE__, __LINE__));
}

void LogSrc::deliver(int level, const char* text) {
  LogSink sink = currentSink.load(std::memory_order_acquire);
  if (!sink)
    return;
  if (!needsEscaping(text)) {
    sink(level, name_, text);
    return;
  }
  String visible = visibleText(text, '~');
  sink(level, name_, visible.get());
}

LogSink setLogSink(LogSink sink) noexcept {
  return currentSink.exchange(sink, std::memory_order_acq_rel);
}

LogSrc* findLogSrc(const char* name) noexcept {
  for (LogSrc* source = LogSrc::first(); source; source = source->next()) {
    if (equalsNoCase(source->name(), name))
      return source;
  }
  return nullptr;
}

void listLogNames(int width, std::FILE* stream) {
  int space = width - 2;
  for (LogSrc* source = LogSrc::first(); source; source = source->next()) {
    int length = static_cast<int>(std::strlen(source->name()));
    if (source == LogSrc::first()) {
      std::fprintf(stream, "  %s", source->name());
    } else if (length + 2 <= space) {
      std::fprintf(stream, ", %s", source->name());
    } else {
      std::fprintf(stream, ",\n  %s", source->name());
      space = width - 2;
    }
    space -= length + 2;
  }
  std::fputs("\n", stream);
}

void listLogDests(std::FILE* /*stream*/) {
  // No named destinations exist before the logging library supplies them.
}

} // namespace plat
