#include "plat/LogDest.h"

#include "plat/LogSrc.h"
#include "plat/NameCompare.h"

namespace plat {

namespace {

// Built on first use: destinations are made from static initialisers too.
LogDest*& listHead() noexcept {
  static LogDest* head = nullptr;
  return head;
}

} // namespace

LogDest::LogDest(const char* name) : name_(name) {
  if (!name_)
    return;
  next_ = listHead();
  listHead() = this;
}

LogDest::~LogDest() {
  detachLogDest(this);
  for (LogSrc* source = LogSrc::first(); source; source = source->next())
    source->removeDest(this);
  if (!name_)
    return;
  for (LogDest** link = &listHead(); *link; link = &(*link)->next_) {
    if (*link == this) {
      *link = next_;
      break;
    }
  }
}

void keepBounded(std::vector<LogRecord>& records, std::size_t limit, int level, const char* source,
                 const char* text, const char* marker) {
  if (records.size() < limit)
    records.push_back({level, String(source), String(text)});
  else if (records.size() == limit)
    records.push_back({0, String(marker), String("Too many messages, discarding further ones")});
}

int logSeverity(int level) noexcept {
  return level <= 0 ? 3 : level <= 5 ? 4 : level <= 10 ? 5 : level <= 30 ? 6 : 7;
}

LogDest* firstLogDest() noexcept {
  return listHead();
}

LogDest* findLogDest(const char* name) noexcept {
  for (LogDest* dest = listHead(); dest; dest = dest->next()) {
    if (equalsNoCase(dest->name(), name))
      return dest;
  }
  return nullptr;
}

void listLogDests(std::FILE* stream) {
  for (LogDest* dest = listHead(); dest; dest = dest->next())
    std::fprintf(stream, "  %s\n", dest->name());
}

} // namespace plat
