#include "loc/LocaleParameter.h"

#include "loc/TextKeys.h"

namespace loc {

// Will move beside the locale selection once the catalogs exist.
plat::StringParameter localeParameter("Locale", plat::DescKey{textkey::loc_param_locale}, "");

} // namespace loc
