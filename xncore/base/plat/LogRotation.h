// The rotation of log files: before a log file is opened, its directory is
// cleaned of rotated files older than "LogKeepDays", and the file itself, if
// it exists, is renamed after its time of last change, so that every run
// starts a file of its own.
#pragma once

#include "plat/Ticks.h"

namespace plat {

/// Deletes the files named "<file>." and more, beside `path`, that last
/// changed before `now` less `keepDays` days; then renames `path` to
/// "<file>.YYYYMMDDhhmmss" of its local modification time, with "(1)" to
/// "(99)" before the last "." part when the name is taken. Never raises:
/// rotation must not stop logging.
void rotateLogFile(const char* path, int keepDays, Ticks now) noexcept;

} // namespace plat
