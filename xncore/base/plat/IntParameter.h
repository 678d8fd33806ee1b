// plat::IntParameter: a signed 32-bit setting with an inclusive range. Text is
// read in C notation, so decimal, octal ("017") and hexadecimal ("0x1f") work.
#pragma once

#include "plat/TypedParameter.h"

#include <cstdint>

namespace plat {

class IntParameter : public TypedParameter<int> {
public:
  IntParameter(const char* name, const ParamDescription& description, int defaultValue,
               bool advanced = false, Configuration* group = nullptr, int min = INT32_MIN,
               int max = INT32_MAX, const char* tags = nullptr);

  /// The whole text must be one number within the range.
  bool setFromString(const char* value, int priority) override;
  /// False when `value` is outside the range.
  bool setInt(int value, int priority) override;
  int getInt() const override { return currentValue(); }
  const char* typeName() const override { return "int"; }
  std::unique_ptr<ConfigParameter> clone(Configuration* group) const override;

  int min() const noexcept { return min_; }
  int max() const noexcept { return max_; }

  operator int() const noexcept { return currentValue(); }

private:
  std::int32_t min_;
  std::int32_t max_;
};

} // namespace plat
