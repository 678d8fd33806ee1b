// The text form of a settings file: one "Name=Value" line a setting, in UTF-8,
// with "#" comment lines and blank lines passed over and no sections. Name and
// value are trimmed of blanks; names compare without regard to case, as
// parameter names do. There is no escaping, since values such as
// "DOMAIN\user" hold characters that an escaping rule would take, and so a
// value cannot hold a line break.
#pragma once

#include "plat/String.h"

#include <utility>
#include <vector>

namespace xnutil {

using ConfigEntry = std::pair<plat::String, plat::String>;

/// The entries of `text` in order. A line without "=" or with an empty name
/// is not an entry.
std::vector<ConfigEntry> parseConfigText(const char* text);

/// `text` with the value of `name` set to `value`: the first line of that
/// name is replaced and later ones are dropped, or a line is appended; a null
/// `value` removes every line of the name. Other lines stay as they are.
plat::String setConfigTextValue(const char* text, const char* name, const char* value);

} // namespace xnutil
