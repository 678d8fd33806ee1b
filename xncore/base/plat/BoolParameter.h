// plat::BoolParameter: an on/off setting. On the command line `-Name` alone
// switches it on, since a missing value means true.
#pragma once

#include "plat/TypedParameter.h"

namespace plat {

class BoolParameter : public TypedParameter<bool> {
public:
  BoolParameter(const char* name, const ParamDescription& description, bool defaultValue,
                bool advanced = false, Configuration* group = nullptr, const char* tags = nullptr);

  /// Null or empty, "1", "on", "true", "yes" are true; "0", "off", "false",
  /// "no" are false (words in any case). Anything else is logged and refused.
  bool setFromString(const char* value, int priority) override;
  /// Non-zero is true.
  bool setInt(int value, int priority) override;
  int getInt() const override { return currentValue() ? 1 : 0; }
  const char* typeName() const override { return "bool"; }
  std::unique_ptr<ConfigParameter> clone(Configuration* group) const override;

  operator bool() const noexcept { return currentValue(); }
};

/// The grammar of BoolParameter::setFromString, without logging; false when
/// `text` is none of the accepted words.
bool parseBool(const char* text, bool& result) noexcept;

} // namespace plat
