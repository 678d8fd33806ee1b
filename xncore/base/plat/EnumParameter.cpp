#include "plat/EnumParameter.h"

#include "plat/DString.h"
#include "plat/NameCompare.h"

namespace plat {

int findEnumIndex(const char* text, const char* const* names, int fallback) {
  if (!text)
    return fallback;
  for (int i = 0; names[i]; ++i) {
    if (equalsNoCase(names[i], text))
      return i;
  }
  return fallback;
}

int maxEnumIndex(const char* const* names) {
  int count = 0;
  while (names[count])
    ++count;
  return count - 1;
}

EnumParameter::EnumParameter(const char* name, const ParamDescription& description,
                             const char* defaultName, const char* const* names, bool advanced,
                             Configuration* group, const char* tags)
    : IntParameter(name, description, findEnumIndex(defaultName, names, 0), advanced, group, 0,
                   maxEnumIndex(names), tags) {
  for (int i = 0; names[i]; ++i)
    names_.push_back(keepText(names[i]));
  names_.push_back(nullptr);
}

bool EnumParameter::setFromString(const char* value, int priority) {
  int index = findEnumIndex(value, names(), -1);
  return index >= 0 && setInt(index, priority);
}

String EnumParameter::valueToString(int value) const {
  if (value < 0 || value > max())
    return IntParameter::valueToString(value);
  return String(names_[static_cast<std::size_t>(value)]);
}

std::unique_ptr<ConfigParameter> EnumParameter::clone(Configuration* group) const {
  return cloneAs<EnumParameter>(nullptr, names(), advanced(), group);
}

} // namespace plat
