// Product initialisation: the first call of every program of the product
// family. It says who the program is, finds its data directory and publishes
// it to the environment for the expansion of paths, points the translations
// at their files, builds the texts that describe the product, sets up the
// defaults of the log and reads the stored configuration.
#pragma once

namespace plat {
class Configuration;
}

namespace product {

/// The company's folder name in paths.
inline constexpr const char* companyName = "Ostrand";
/// The short path component of the product family.
inline constexpr const char* pathComponent = "oxn";

/// Whether this process is a service of the whole machine, which keeps its
/// data in the machine's scope. False in the programs of a desktop user.
extern bool isServiceProcess;

/// Initialises the product for the application `appName`, or, when that is
/// null, the name of `argv0` without ".exe". `displayNameKey` is the catalog
/// key of the name shown to people. `logSpec` is the default of "Log"
/// ("*:stderr:10" when null); `enableFileLog` lets "LogDir" and "LogFile"
/// take effect; `loadConfiguration` reads the stored configuration.
void productInit(const char* argv0, const char* appName, const char* displayNameKey,
                 const char* logSpec, bool enableFileLog, bool loadConfiguration);

/// The log step by itself: the destinations "debug", "stderr" and "file",
/// named after `appName`, and at priority 0 "LogDir" `logDir`, "LogFile"
/// `logFile` and "Log" `logSpec` or "*:stderr:10".
void initLogDefaults(const char* logSpec, const char* logDir, const char* logFile,
                     const char* appName);

/// The configuration step by itself: the store of the application's
/// settings, made on first use in the machine's scope for a service and the
/// user's otherwise, reads the preferences into `target` (null: the global
/// group) at priority 10, then the policy at 30.
void loadStoredConfiguration(plat::Configuration* target);

} // namespace product
