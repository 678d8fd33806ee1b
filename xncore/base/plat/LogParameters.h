// The parameters of logging, read by the log destinations and the
// reconfiguration of sources; they exist, with their defaults, from the start.
#pragma once

#include "plat/BoolParameter.h"
#include "plat/IntParameter.h"
#include "plat/StringParameter.h"

namespace plat {

/// "Log": comma-separated <source>:<destination>:<level> elements.
extern StringParameter logParameter;
/// "LogDir" and "LogFile": where the destination "file" writes.
extern StringParameter logDirParameter;
extern StringParameter logFileParameter;
/// "LogKeepDays": how long rotated log files are kept.
extern IntParameter logKeepDaysParameter;
/// "CompactLog": short local-time lines instead of the syslog form.
extern BoolParameter compactLogParameter;

} // namespace plat
