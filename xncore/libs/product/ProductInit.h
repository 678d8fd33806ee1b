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

/// Reads the stored settings into `target` (null: the global group) at
/// priority 10, then the policy at 30.
using StoredConfigurationLoader = void (*)(plat::Configuration* target);

/// Installs the reader of the stored configuration; the store's library does
/// so when it is part of the program.
void setStoredConfigurationLoader(StoredConfigurationLoader loader) noexcept;

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

/// The configuration step by itself, through the installed loader; false
/// when none is installed.
bool loadStoredConfiguration(plat::Configuration* target);

} // namespace product
