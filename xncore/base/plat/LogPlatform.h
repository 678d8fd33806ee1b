// What the log destinations need of the platform: who is writing, whether a
// stream is a terminal, the redirection of standard error, and the system's
// own channel for debugging output.
#pragma once

#include "plat/String.h"

#include <cstdint>
#include <cstdio>

namespace plat {

/// The identifier of the running process.
std::int64_t currentProcessId() noexcept;

/// The computer's name: its first label, at most 16 characters; empty when
/// the system does not tell.
String computerName();

/// True when `stream` is connected to a terminal.
bool streamIsTerminal(std::FILE* stream) noexcept;

/// Makes standard error write where `stream` writes, at the level of the
/// system's descriptors, and leaves it unbuffered.
void redirectStderrTo(std::FILE* stream) noexcept;

/// Hands one line to the system's debugging channel, with the syslog
/// severity of its level (logSeverity) for channels that keep one.
void writeDebugOutput(int severity, const char* line) noexcept;

} // namespace plat
