#include "plat/LogParameters.h"

#include "plat/LogConfig.h"
#include "plat/TextKeys.h"

#include <climits>

namespace plat {

// Read by the reconfiguration of log sources.
StringParameter logParameter("Log", DescKey{textkey::plat_param_log}, "");
// Read by the manager of the destination "file".
StringParameter logDirParameter("LogDir", DescKey{textkey::plat_param_logdir}, "");
StringParameter logFileParameter("LogFile", DescKey{textkey::plat_param_logfile}, "");
// Read by the rotation of log files.
IntParameter logKeepDaysParameter("LogKeepDays", DescKey{textkey::plat_param_log_keep_days}, 30,
                                  false, nullptr, 0, INT_MAX);
// Read by the line format of file destinations.
BoolParameter compactLogParameter("CompactLog",
                                  "Whether to produce more compact logging lines for "
                                  "readability.  Also produces times in local timezone instead "
                                  "of UTC",
                                  false, true);

namespace {

// Every change of "Log" reconfigures all sources. Registered in this file,
// after the parameter, because only within one file is the order of static
// construction known.
class LogParameterChangedCallback : public ParameterChangedCallback {
public:
  LogParameterChangedCallback() { logParameter.addCallback(this); }
  void paramChanged(ConfigParameter*, int) override { reconfigureLog(); }
} reconfigureOnChange;

} // namespace

} // namespace plat
