#include "plat/LogDestDebug.h"

#include "plat/DString.h"
#include "plat/LogPlatform.h"

namespace plat {

void LogDestDebug::write(int level, const char* sourceName, const char* text) {
  DString line;
  line.appendFormat(" %s: %s", sourceName, text);
  writeDebugOutput(logSeverity(level), line.get());
}

void initLogDestDebug() {
  static LogDestDebug debug;
}

} // namespace plat
