#include "loc/DefaultLocales.h"

#include <stdlib.h>

namespace loc {

void defaultLocales(std::vector<plat::String>& list) {
  appendEnvironmentLocales(LocaleEnvironment{getenv("LANGUAGE"), getenv("LC_ALL"),
                                             getenv("LC_MESSAGES"), getenv("LANG")},
                           list);
}

} // namespace loc
