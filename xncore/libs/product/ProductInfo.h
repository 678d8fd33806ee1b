// The texts that describe the product: the version line, the marked-up body
// of the About box, the operating-system line and the full information text
// that heads the help and every log file. They are in the language in force,
// so they are rebuilt whenever parameter "Locale" changes.
#pragma once

#include "plat/String.h"

namespace product {

/// The maker's web address, the root of the documentation's address.
inline constexpr const char* makerWebAddress = "https://www.ostrand.example";

/// Builds the four texts now and again at each change of "Locale", and makes
/// the full information text the banner of the log files. Later calls do
/// nothing.
void startProductTexts();

/// "<display name> <version> x64 (<build date>)", with no double blanks.
plat::String versionLine();
/// The About box's body: the legal lines, each in a <div>, then the pointer
/// to the documentation.
plat::String aboutText();
/// "OS: <system's name>, <architecture word>".
plat::String osLine();
/// The version line, the legal lines, the further information, the
/// documentation's address and the "OS:" line, as plain text with the marks
/// ®, © and ™ spelled out, wrapped at 79 columns.
plat::String fullInfo();
/// "<maker's web address>/docs/<major version>/foss.html", of the build
/// version in force when the texts were first built.
plat::String documentationAddress();

} // namespace product
