#include "plat/BinaryParameter.h"

#include "plat/BinToHex.h"

namespace plat {

BinaryParameter::BinaryParameter(const char* name, const ParamDescription& description,
                                 const MBuf<unsigned char>& defaultValue, bool advanced,
                                 Configuration* group, const char* tags)
    : TypedParameter(name, description, defaultValue, advanced, group, tags) {}

bool BinaryParameter::setFromString(const char* value, int priority) {
  if (!value)
    return false;
  MBuf<unsigned char> bytes;
  if (!hexToBin(value, bytes))
    return false;
  bytes.setSecure(defaultValue().isSecure());
  return setValue(bytes, priority);
}

void BinaryParameter::getBinary(MBuf<unsigned char>& out) const {
  out = currentValue();
}

std::unique_ptr<ConfigParameter> BinaryParameter::clone(Configuration* group) const {
  return cloneAs<BinaryParameter>(currentValue(), advanced(), group);
}

} // namespace plat
