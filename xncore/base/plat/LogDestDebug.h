// plat::LogDestDebug: the destination "debug", the system's channel for
// debugging output (the system log on Linux). The level is not part of the line.
#pragma once

#include "plat/LogDest.h"

namespace plat {

class LogDestDebug : public LogDest {
public:
  LogDestDebug() : LogDest("debug") {}

  /// Writes " <source>: <text>".
  void write(int level, const char* sourceName, const char* text) override;
};

/// Creates the destination "debug" once.
void initLogDestDebug();

} // namespace plat
