#include "plat/IntParameter.h"

#include "plat/NumParse.h"

namespace plat {

IntParameter::IntParameter(const char* name, const ParamDescription& description, int defaultValue,
                           bool advanced, Configuration* group, int min, int max, const char* tags)
    : TypedParameter(name, description, defaultValue, advanced, group, tags), min_(min), max_(max) {
}

bool IntParameter::setFromString(const char* value, int priority) {
  if (!value)
    return false;
  std::int32_t parsed = 0;
  const char* cursor = value;
  if (!tryParseInt(parsed, cursor, 0) || *cursor != '\0')
    return false;
  return setInt(parsed, priority);
}

bool IntParameter::setInt(int value, int priority) {
  if (value < min_ || value > max_)
    return false;
  return setValue(value, priority);
}

std::unique_ptr<ConfigParameter> IntParameter::clone(Configuration* group) const {
  return cloneAs<IntParameter>(currentValue(), advanced(), group, min_, max_);
}

} // namespace plat
