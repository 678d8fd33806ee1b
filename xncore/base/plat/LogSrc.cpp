#include "plat/LogSrc.h"

#include "plat/Assertion.h"
#include "plat/BoundedAppend.h"
#include "plat/LogDest.h"
#include "plat/LogDestMem.h"
#include "plat/NameCompare.h"
#include "plat/String.h"
#include "plat/utf8.h"

#include <algorithm>
#include <cstring>

namespace plat {

namespace detail {
std::atomic<bool> logInitialised{false};
}

namespace {

// Built on first use, since sources register from static initialisers of any
// translation unit.
LogSrc*& listHead() noexcept {
  static LogSrc* head = nullptr;
  return head;
}

// A message is passed on as it stands unless it holds a control character,
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
  detail::applyAttachedDests(*this);
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
  if (!passes(level))
    return;
  checkConstructed();
  char text[4096];
  text[0] = '\0';
  appendBoundedFormatV(text, sizeof text, format, args);
  deliver(level, text);
}

void LogSrc::writeLines(int level, const char* text) {
  if (!text || !passes(level))
    return;
  checkConstructed();
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

void LogSrc::setDest(LogDest* dest, int level) {
  dests_[dest] = level;
}

void LogSrc::removeDest(LogDest* dest) {
  if (dests_.erase(dest))
    updateLevel();
}

void LogSrc::clearDests() {
  dests_.clear();
  level_.store(-1, std::memory_order_relaxed);
}

void LogSrc::updateLevel() {
  std::int32_t highest = -1;
  for (const auto& [dest, level] : dests_)
    highest = std::max(highest, std::min(level, static_cast<std::int32_t>(dest->level())));
  level_.store(highest, std::memory_order_relaxed);
}

void LogSrc::checkConstructed() const noexcept {
  if (!constructed_)
    assertionFailed(AssertionFail("constructed", __FILE__, __LINE__));
}

void LogSrc::deliver(int level, const char* text) {
  if (dests_.empty() && logInitialised())
    return;
  String visible;
  if (needsEscaping(text)) {
    visible = visibleText(text, '~');
    text = visible.get();
  }
  bool delivered = false;
  for (const auto& [dest, destLevel] : dests_) {
    if (destLevel >= level && dest->isAvailable()) {
      dest->write(level, name_, text);
      delivered = true;
    }
  }
  // Kept until a destination that wants it is ready.
  if (!delivered)
    LogDestMem::instance().write(level, name_, text);
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

} // namespace plat
