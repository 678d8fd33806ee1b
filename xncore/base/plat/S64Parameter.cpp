#include "plat/S64Parameter.h"

#include "plat/BinToHex.h"
#include "plat/DString.h"
#include "plat/StringUtils.h"

#include <cstring>

namespace plat {

namespace {

constexpr const char* prefix = "int64:";
constexpr std::size_t prefixLength = 6;
constexpr std::size_t digitCount = 16;

bool isStoredForm(const char* text) {
  if (std::strlen(text) != prefixLength + digitCount || !startsWith(text, prefix))
    return false;
  for (const char* digit = text + prefixLength; *digit; ++digit) {
    int value = 0;
    if (!addHexDigit(*digit, value))
      return false;
  }
  return true;
}

} // namespace

String s64ToText(std::int64_t value) {
  return strFormat("%s%016llx", prefix,
                   static_cast<unsigned long long>(static_cast<std::uint64_t>(value)));
}

S64Parameter::S64Parameter(const char* name, const ParamDescription& description,
                           std::int64_t defaultValue, bool advanced, Configuration* group,
                           const char* tags)
    : TypedParameter(name, description, s64ToText(defaultValue), advanced, group, tags) {}

bool S64Parameter::setFromString(const char* value, int priority) {
  if (!value)
    return false;
  if (isStoredForm(value))
    return setValue(String(value), priority);
  MBuf<unsigned char> bytes;
  if (!hexToBin(value, bytes) || bytes.length() != 8)
    return false;
  std::uint64_t number = 0;
  for (int i = 7; i >= 0; --i)
    number = (number << 8) | bytes[i];
  return setS64(static_cast<std::int64_t>(number), priority);
}

std::int64_t S64Parameter::getS64() const {
  std::uint64_t number = 0;
  for (const char* digit = currentValue().get() + prefixLength; *digit; ++digit) {
    int value = 0;
    addHexDigit(*digit, value);
    number = (number << 4) | static_cast<std::uint64_t>(value);
  }
  return static_cast<std::int64_t>(number);
}

bool S64Parameter::setS64(std::int64_t value, int priority) {
  return setValue(s64ToText(value), priority);
}

std::unique_ptr<ConfigParameter> S64Parameter::clone(Configuration* group) const {
  return cloneAs<S64Parameter>(getS64(), advanced(), group);
}

} // namespace plat
