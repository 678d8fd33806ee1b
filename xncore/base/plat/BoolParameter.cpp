#include "plat/BoolParameter.h"

#include "plat/LogSrc.h"
#include "plat/NameCompare.h"

namespace plat {

bool parseBool(const char* text, bool& result) noexcept {
  static const char* const trueWords[] = {"", "1", "on", "true", "yes"};
  static const char* const falseWords[] = {"0", "off", "false", "no"};
  if (!text) {
    result = true;
    return true;
  }
  for (const char* word : trueWords) {
    if (equalsNoCase(text, word)) {
      result = true;
      return true;
    }
  }
  for (const char* word : falseWords) {
    if (equalsNoCase(text, word)) {
      result = false;
      return true;
    }
  }
  return false;
}

BoolParameter::BoolParameter(const char* name, const ParamDescription& description,
                             bool defaultValue, bool advanced, Configuration* group,
                             const char* tags)
    : TypedParameter(name, description, defaultValue, advanced, group, tags) {}

bool BoolParameter::setFromString(const char* value, int priority) {
  bool parsed = false;
  if (!parseBool(value, parsed)) {
    log().error("Bool parameter %s: invalid value '%s'", name(), value);
    return false;
  }
  return setValue(parsed, priority);
}

bool BoolParameter::setInt(int value, int priority) {
  return setValue(value != 0, priority);
}

std::unique_ptr<ConfigParameter> BoolParameter::clone(Configuration* group) const {
  return cloneAs<BoolParameter>(currentValue(), advanced(), group);
}

} // namespace plat
