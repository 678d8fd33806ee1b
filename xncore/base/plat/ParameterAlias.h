// plat::ParameterAlias: a retired parameter name that stands for one or more
// current ones, so that old command lines and stores keep working. Setting
// the alias sets every target to the same value. An alias entered in a group
// must live as long as that group uses it; aliases are static objects.
#pragma once

#include "plat/NameCompare.h"
#include "plat/String.h"

#include <map>
#include <vector>

namespace plat {

class ConfigParameter;
class Configuration;

/// Parameter names and values, ordered by name without regard to case.
using ParamValueMap = std::map<String, String, NoCaseLess>;

class ParameterAlias {
public:
  /// An alias for up to three targets; null names are skipped.
  explicit ParameterAlias(const char* target1, const char* target2 = nullptr,
                          const char* target3 = nullptr);
  /// An alias `aliasName` for `target`, entered in `group` (null: the global group).
  ParameterAlias(const char* aliasName, const ConfigParameter& target,
                 Configuration* group = nullptr);
  virtual ~ParameterAlias() = default;

  /// Sets `out[target] = value` for every target; true when expanded.
  virtual bool expand(const char* name, const char* value, ParamValueMap& out) const;

  const std::vector<String>& targets() const noexcept { return targets_; }

private:
  std::vector<String> targets_;
};

} // namespace plat
