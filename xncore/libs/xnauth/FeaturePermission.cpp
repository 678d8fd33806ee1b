#include "xnauth/FeaturePermission.h"

#include "xnauth/PermissionDefn.h"
#include "xnauth/Texts.h"

namespace xnauth {

FeaturePermission::FeaturePermission(char code, const char* descriptionKey, const char* groups,
                                     const char* parameters)
    : code_(code) {
  definePermission(code, lookupText(descriptionKey), groups, parameters);
}

FeaturePermission::~FeaturePermission() {
  undefinePermission(code_);
}

} // namespace xnauth
