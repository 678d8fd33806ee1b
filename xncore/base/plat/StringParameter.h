// plat::StringParameter: a text setting, always valid UTF-8 and never null.
#pragma once

#include "plat/TypedParameter.h"

namespace plat {

class StringParameter : public TypedParameter<String> {
public:
  /// A null `defaultValue` is a fatal assertion.
  StringParameter(const char* name, const ParamDescription& description, const char* defaultValue,
                  bool advanced = false, Configuration* group = nullptr,
                  const char* tags = nullptr);

  /// Null is refused; text that is not valid UTF-8 raises BadUtf8.
  bool setFromString(const char* value, int priority) override;
  const char* typeName() const override { return "string"; }
  std::unique_ptr<ConfigParameter> clone(Configuration* group) const override;

  operator String() const { return getValueString(); }
};

} // namespace plat
