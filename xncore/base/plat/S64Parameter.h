// plat::S64Parameter: a signed 64-bit setting, kept as text of the form
// "int64:" and 16 lower-case hex digits, most significant byte first. The
// text may also be given as 16 hex digits alone; those are the eight bytes of
// a little-endian number, so that form reads the bytes in the other order.
#pragma once

#include "plat/TypedParameter.h"

#include <cstdint>

namespace plat {

class S64Parameter : public TypedParameter<String> {
public:
  S64Parameter(const char* name, const ParamDescription& description, std::int64_t defaultValue,
               bool advanced = false, Configuration* group = nullptr, const char* tags = nullptr);

  bool setFromString(const char* value, int priority) override;
  const char* typeName() const override { return "s64"; }
  std::unique_ptr<ConfigParameter> clone(Configuration* group) const override;

  std::int64_t getS64() const;
  bool setS64(std::int64_t value, int priority);
};

/// The stored text of `value`: "int64:" and 16 hex digits.
String s64ToText(std::int64_t value);

} // namespace plat
