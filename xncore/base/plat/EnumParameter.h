// plat::EnumParameter: a choice among named values. The value is the index
// into the names; text in and out is the name, matched without regard to case.
#pragma once

#include "plat/IntParameter.h"

#include <vector>

namespace plat {

class EnumParameter : public IntParameter {
public:
  /// `names` is a null-terminated array; a null or unknown `defaultName` means index 0.
  EnumParameter(const char* name, const ParamDescription& description, const char* defaultName,
                const char* const* names, bool advanced = false, Configuration* group = nullptr,
                const char* tags = nullptr);

  bool setFromString(const char* value, int priority) override;
  const char* typeName() const override { return "enum"; }
  std::unique_ptr<ConfigParameter> clone(Configuration* group) const override;
  /// The name at index `value`.
  String valueToString(int value) const override;

  /// The names, null-terminated.
  const char* const* names() const noexcept { return names_.data(); }

private:
  std::vector<const char*> names_;
};

/// The index of `text` among `names` without regard to case, or `fallback`.
int findEnumIndex(const char* text, const char* const* names, int fallback);
/// The number of names less one.
int maxEnumIndex(const char* const* names);

} // namespace plat
