// The log source of the directory object picker. Linux has no picker (adding
// a user or group always goes through the typed dialog), but the source
// exists on every platform, so that one "Log" value addresses the same names.
#include "plat/LogSrc.h"

namespace smisc {

namespace {
plat::LogSrc objectPickerLog("DsObjectPicker");
}

} // namespace smisc
