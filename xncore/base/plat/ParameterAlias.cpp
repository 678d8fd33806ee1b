#include "plat/ParameterAlias.h"

#include "plat/ConfigParameter.h"
#include "plat/Configuration.h"

namespace plat {

ParameterAlias::ParameterAlias(const char* target1, const char* target2, const char* target3) {
  for (const char* target : {target1, target2, target3}) {
    if (target)
      targets_.emplace_back(target);
  }
}

ParameterAlias::ParameterAlias(const char* aliasName, const ConfigParameter& target,
                               Configuration* group)
    : ParameterAlias(target.name()) {
  (group ? *group : Configuration::global()).addAlias(aliasName, this);
}

bool ParameterAlias::expand(const char* /*name*/, const char* value, ParamValueMap& out) const {
  for (const String& target : targets_)
    out[target] = String(value);
  return true;
}

} // namespace plat
