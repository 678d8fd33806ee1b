#include "xnutil/ConfigStore.h"

#include "plat/ConfigParameter.h"

namespace xnutil {

void ConfigStore::load(bool withPolicy, plat::Configuration* configuration) {
  loadValues(plat::priorityPreference, configuration);
  if (withPolicy)
    loadPolicy(configuration);
}

} // namespace xnutil
