// The user's own languages, for when parameter "Locale" is empty: on Linux
// the environment says them, as it does for every other program of the desktop.
#pragma once

#include "plat/String.h"

#include <vector>

namespace loc {

/// The values of the locale variables of the environment; null when unset.
struct LocaleEnvironment {
  const char* language;   ///< LANGUAGE: a ":"-separated list of preferences
  const char* lcAll;      ///< LC_ALL
  const char* lcMessages; ///< LC_MESSAGES
  const char* lang;       ///< LANG
};

/// Appends the locales that `environment` asks for to `list`, as
/// "language_TERRITORY", names already there skipped. The locale of messages
/// is the first set of LC_ALL, LC_MESSAGES and LANG; when it is the neutral
/// one ("C", "C.<codeset>", "POSIX") or none, nothing is appended, since such
/// a locale does not ask for a language, and then LANGUAGE does not count
/// either. Otherwise the preferences of LANGUAGE come first, then that locale.
void appendEnvironmentLocales(const LocaleEnvironment& environment,
                              std::vector<plat::String>& list);

/// Appends the user's locales as the system keeps them.
void defaultLocales(std::vector<plat::String>& list);

} // namespace loc
