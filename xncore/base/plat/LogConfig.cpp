#include "plat/LogConfig.h"

#include "plat/LogDest.h"
#include "plat/LogDestMem.h"
#include "plat/LogParameters.h"
#include "plat/LogSrc.h"
#include "plat/NameCompare.h"
#include "plat/NumParse.h"
#include "plat/StringUtils.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace plat {

namespace {

// The override is set and read on the thread that configures.
String& overrideText() {
  static String text;
  return text;
}

// Destinations attached whatever the configuration says. Never destroyed:
// destinations that end during static destruction detach themselves here.
std::vector<LogElement>& attached() {
  static auto* const elements = new std::vector<LogElement>();
  return *elements;
}

void pointMatchingSources(const LogElement& element) {
  for (LogSrc* source = LogSrc::first(); source; source = source->next()) {
    if (matchPattern(element.pattern.get(), source->name(), false))
      source->setDest(element.dest, element.level);
  }
}

// A whole non-negative decimal number that fits a level.
bool parseLevel(const char* text, int& level) {
  if (!*text || std::strspn(text, "0123456789") != std::strlen(text))
    return false;
  const char* cursor = text;
  std::int32_t value = 0;
  if (!tryParseInt(value, cursor, 10) || *cursor)
    return false;
  level = value;
  return true;
}

// The elements of `text` that name a destination, in order.
std::vector<LogElement> parseLogText(const char* text, std::FILE* errors) {
  std::vector<LogElement> elements;
  String copy(text ? text : "");
  for (char* cursor = copy.data(); cursor;) {
    const char* element = nextToken(cursor, ',');
    LogElement parsed;
    if (parseLogElement(element, parsed, errors))
      elements.push_back(std::move(parsed));
  }
  return elements;
}

// The text in force: the override while there is one, else "Log".
String currentLogText() {
  return overrideText().isNull() ? logParameter.getValueString() : overrideText();
}

int replayElement(const LogElement& element) {
  if (std::strcmp(element.pattern.get(), "*") != 0 || !element.dest->isAvailable())
    return -1;
  LogDestMem::instance().replay(*element.dest, element.level);
  return element.level;
}

// Replays what the elements want and drops it from memory. Elements with a
// narrower pattern leave their messages where they are.
void replayElements(const std::vector<LogElement>& elements) {
  int highest = -1;
  for (const LogElement& element : elements)
    highest = std::max(highest, replayElement(element));
  if (highest >= 0)
    LogDestMem::instance().removeUpTo(highest);
}

void updateAllLevels() {
  for (LogSrc* source = LogSrc::first(); source; source = source->next())
    source->updateLevel();
}

} // namespace

bool parseLogElement(const char* element, LogElement& result, std::FILE* errors) {
  if (!element || !*element)
    return false;
  String copy(element);
  char* cursor = copy.data();
  char* pattern = nextToken(cursor, ':');
  char* destName = cursor ? nextToken(cursor, ':') : nullptr;
  int level = -1;
  if (!destName || !cursor || !parseLevel(cursor, level)) {
    if (errors)
      std::fprintf(errors, "Failed to parse log param element: '%s'\n", element);
    return false;
  }
  if (!*destName)
    return false;
  LogDest* dest = findLogDest(destName);
  if (!dest) {
    if (errors)
      std::fprintf(errors, "No LogDest found: '%s'\n", destName);
    return false;
  }
  result.pattern = String(pattern);
  result.dest = dest;
  result.level = level;
  return true;
}

void reconfigureLog() {
  for (LogSrc* source = LogSrc::first(); source; source = source->next())
    source->clearDests();
  String text = currentLogText();
  std::vector<LogElement> elements = parseLogText(text.get(), stderr);
  for (const LogElement& element : elements)
    pointMatchingSources(element);
  for (const LogElement& element : attached())
    pointMatchingSources(element);
  replayElements(elements);
  updateAllLevels();
}

void logInit() {
  if (detail::logInitialised.exchange(true))
    return;
  // Parse errors were reported when the text was applied.
  String text = currentLogText();
  replayElements(parseLogText(text.get(), nullptr));
  LogDestMem::instance().clear();
}

void setLogOverride(const char* text) {
  overrideText() = String(text);
  reconfigureLog();
}

String logOverride() {
  return overrideText();
}

void addLogElement(const char* element) {
  LogElement parsed;
  if (!parseLogElement(element, parsed))
    return;
  pointMatchingSources(parsed);
  updateAllLevels();
}

void attachLogDest(const char* pattern, LogDest* dest, int level) {
  attached().push_back({String(pattern), dest, level});
  pointMatchingSources(attached().back());
  updateAllLevels();
}

void detachLogDest(LogDest* dest) {
  std::erase_if(attached(), [dest](const LogElement& element) { return element.dest == dest; });
}

namespace detail {

void applyAttachedDests(LogSrc& source) {
  bool matched = false;
  for (const LogElement& element : attached()) {
    if (matchPattern(element.pattern.get(), source.name(), false)) {
      source.setDest(element.dest, element.level);
      matched = true;
    }
  }
  // Otherwise the source keeps letting everything through until configured.
  if (matched)
    source.updateLevel();
}

} // namespace detail

int replayLogElement(const char* element) {
  LogElement parsed;
  return parseLogElement(element, parsed) ? replayElement(parsed) : -1;
}

} // namespace plat
