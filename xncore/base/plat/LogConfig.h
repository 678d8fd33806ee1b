// Which source goes to which destination at which level. The parameter "Log"
// (or an override that takes its place) is a comma-separated list of elements
// "<source pattern>:<destination>:<level>"; a pattern matches source names
// with "*" as wildcard and without regard to case. Every change of the
// parameter reconfigures all sources and replays the messages that waited in
// memory into the destinations that now want them.
#pragma once

#include "plat/String.h"

#include <cstdio>

namespace plat {

class LogDest;
class LogSrc;

/// One element of "Log", parsed.
struct LogElement {
  String pattern;
  LogDest* dest = nullptr;
  int level = -1;
};

/// Parses one element. False when it configures nothing: an empty element or
/// an empty destination name silently; a malformed element ("Failed to parse
/// log param element: '<element>'") or an unknown destination ("No LogDest
/// found: '<name>'") with a line on `errors`, unless that is null.
bool parseLogElement(const char* element, LogElement& result, std::FILE* errors = stderr);

/// Rebuilds every source's destinations from the override, or else from
/// "Log", replays stored messages and updates the levels. Runs on each
/// change of "Log".
void reconfigureLog();

/// Sets up logging for good, once, when the application's loop starts:
/// replays what the configuration wants and drops what is left in memory.
void logInit();

/// Takes the place of "Log" while set (null clears it), and reconfigures.
void setLogOverride(const char* text);
/// The override, or null.
String logOverride();

/// Applies one element on top of the present configuration, until the next
/// reconfiguration.
void addLogElement(const char* element);

/// Keeps every source that `pattern` matches, also those made later, pointed
/// at `dest` up to `level`, whatever "Log" says, until detachLogDest or the
/// end of `dest`: for destinations that watch the whole log.
void attachLogDest(const char* pattern, LogDest* dest, int level);
void detachLogDest(LogDest* dest);

namespace detail {
/// Points a new source at the destinations attached so far.
void applyAttachedDests(LogSrc& source);
} // namespace detail

/// Replays stored messages for one element whose pattern is "*" into its
/// destination, when that is available, and returns its level; else -1.
int replayLogElement(const char* element);

} // namespace plat
