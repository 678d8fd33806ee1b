// Product initialisation: the first call of every program of the product
// family. It finds the program's data directory, publishes it to the
// environment for the expansion of paths, and sets up the defaults of the log.
#pragma once

namespace product {

/// The company's folder name in paths.
inline constexpr const char* companyName = "Ostrand";

/// Initialises the product for the application `appName`, or, when that is
/// null, the name of `argv0` without ".exe". `logSpec` is the default of
/// "Log" ("*:stderr:10" when null); `enableFileLog` lets "LogDir" and
/// "LogFile" take effect.
void productInit(const char* argv0, const char* appName, const char* logSpec, bool enableFileLog);

/// The log step by itself: the destinations "debug", "stderr" and "file", and
/// at priority 0 "LogDir" "$LOCAL_APPDATA_COMPANY", "LogFile" "<app>.log" and
/// "Log" `logSpec` or "*:stderr:10".
void initLogDefaults(const char* logSpec, const char* appName);

} // namespace product
