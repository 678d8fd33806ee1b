#include "xnauth/FeaturePermission.h"

#include "plat/EnglishText.h"
#include "xnauth/PermissionDefn.h"

namespace xnauth {

FeaturePermission::FeaturePermission(char code, const char* descriptionKey, const char* groups,
                                     const char* parameters)
    : code_(code) {
  definePermission(code, plat::englishText(descriptionKey), groups, parameters);
}

FeaturePermission::~FeaturePermission() {
  undefinePermission(code_);
}

} // namespace xnauth
