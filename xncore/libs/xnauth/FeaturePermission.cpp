#include "xnauth/FeaturePermission.h"

#include "loc/Localize.h"
#include "xnauth/PermissionDefn.h"

namespace xnauth {

FeaturePermission::FeaturePermission(char code, const char* descriptionKey, const char* groups,
                                     const char* parameters)
    : code_(code) {
  definePermission(code, XN_TEXT(descriptionKey), groups, parameters);
}

FeaturePermission::~FeaturePermission() {
  undefinePermission(code_);
}

} // namespace xnauth
