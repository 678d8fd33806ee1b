// The internal parameter "_MissingDomainNull", a switch of the resolution of
// security principals for accounts whose domain is missing. Internal
// parameters work like any other but are left out of help and value dumps.
#pragma once

#include "plat/BoolParameter.h"

namespace sysauth {

extern plat::BoolParameter missingDomainNullParameter;

} // namespace sysauth
