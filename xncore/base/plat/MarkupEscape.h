// Escaping of text for markup and XML: the one routine that the XML form of a
// configuration and the markup library share.
#pragma once

#include "plat/String.h"

namespace plat {

/// `text` with invalid UTF-8 repaired and "&", "<", ">", "\"" and "'" written
/// as the predefined entities; null gives null.
String escapeMarkup(const char* text);

} // namespace plat
