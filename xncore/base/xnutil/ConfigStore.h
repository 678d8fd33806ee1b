// xnutil::ConfigStore: a live store of settings that brings parameters in from
// outside the process and writes them back. Values are read at a priority: a
// user's or the machine's preferences at 10, policy at 30, so that a policy
// stands over a preference and withdrawing it reveals what lay beneath.
#pragma once

namespace plat {
class ConfigParameter;
class Configuration;
} // namespace plat

namespace xnutil {

class ConfigStore {
public:
  virtual ~ConfigStore() = default;

  /// The preferences at priority 10, then, with `withPolicy`, the policy.
  /// A null `configuration` is the global group, here and below.
  void load(bool withPolicy, plat::Configuration* configuration);
  /// Sets every value found at `priority`, which must be below policy's.
  /// Values that the group does not know or refuses are passed over.
  virtual void loadValues(int priority, plat::Configuration* configuration) = 0;
  /// Sets every policy value at priority 30.
  virtual void loadPolicy(plat::Configuration* configuration) = 0;
  /// Writes the parameters of `configuration` whose text differs from the
  /// same name's in `base`; names that `base` lacks are not written.
  virtual void saveChanges(const plat::Configuration& configuration,
                           const plat::Configuration& base) = 0;
  /// Writes the current value of `parameter`.
  virtual void saveParam(const plat::ConfigParameter& parameter) = 0;
  /// Deletes the value of `parameter`; removing what is not there is no error.
  virtual void removeParam(const plat::ConfigParameter& parameter) = 0;
  /// Whether the store's preferences exist and can be read.
  virtual bool exists() = 0;
};

} // namespace xnutil
