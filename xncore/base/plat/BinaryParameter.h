// plat::BinaryParameter: a setting of raw bytes, written as hexadecimal text.
// A parameter whose default is marked secure keeps every value it is given
// secure too, so secrets are wiped wherever a copy is released. Binary
// parameters count as advanced and never show their values in logs.
#pragma once

#include "plat/MBuf.h"
#include "plat/TypedParameter.h"

namespace plat {

class BinaryParameter : public TypedParameter<MBuf<unsigned char>> {
public:
  BinaryParameter(const char* name, const ParamDescription& description,
                  const MBuf<unsigned char>& defaultValue, bool advanced = false,
                  Configuration* group = nullptr, const char* tags = nullptr);

  /// The text must be hexadecimal; null is refused.
  bool setFromString(const char* value, int priority) override;
  const char* typeName() const override { return "binary"; }
  std::unique_ptr<ConfigParameter> clone(Configuration* group) const override;

  /// Copies the value in force, with its secure flag, into `out`.
  void getBinary(MBuf<unsigned char>& out) const;
};

} // namespace plat
