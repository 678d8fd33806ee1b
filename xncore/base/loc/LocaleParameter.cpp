#include "loc/LocaleParameter.h"

namespace loc {

// Will move beside the locale selection once the catalogs exist.
plat::StringParameter localeParameter("Locale", plat::DescKey{"loc_param_locale"}, "");

} // namespace loc
