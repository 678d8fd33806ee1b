#include "plat/StringParameter.h"

#include "plat/Assertion.h"
#include "plat/utf8.h"

namespace plat {

namespace {

const char* checkedDefault(const char* v, const char* name) noexcept {
  if (!v)
    assertionFailed(AssertionFail("v", __FILE__, __LINE__)
                        .addDetail("Default value <null> for %s not allowed", name));
  return v;
}

} // namespace

StringParameter::StringParameter(const char* name, const ParamDescription& description,
                                 const char* defaultValue, bool advanced, Configuration* group,
                                 const char* tags)
    : TypedParameter(name, description, String(checkedDefault(defaultValue, name)), advanced, group,
                     tags) {}

bool StringParameter::setFromString(const char* value, int priority) {
  if (!value)
    return false;
  if (!isValidUtf8(value))
    throw BadUtf8(formatted, "Bad UTF-8 string for %s", name());
  return setValue(String(value), priority);
}

std::unique_ptr<ConfigParameter> StringParameter::clone(Configuration* group) const {
  return cloneAs<StringParameter>(currentValue().get(), advanced(), group);
}

} // namespace plat
