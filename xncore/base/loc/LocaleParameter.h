// The parameter "Locale": the language the user chose for the program's
// texts. The selection of the locale and the translation catalogs read it and
// rebuild the process's translations when it changes.
#pragma once

#include "plat/StringParameter.h"

namespace loc {

/// Empty selects the user's or the system's locale.
extern plat::StringParameter localeParameter;

} // namespace loc
