// xnutil::ConfigStoreReg: the product's settings store in the system's own
// place for settings, in four scopes: the user's preferences or the machine's
// (which of them is `machine_`), and the policy of the user and of the
// machine. Preferences are read at the priority asked for; policy at 30, the
// user's first, so that the machine's policy wins a name that both set.
//
// On Linux each scope is a text file of "Name=Value" lines (see ConfigText.h),
// named after the application:
//   user preferences     <userDir>/<app>.conf   ${XDG_CONFIG_HOME:-~/.config}/Ostrand
//   machine preferences  <machineDir>/<app>.conf              /etc/xdg/Ostrand
//   user policy          <policyDir>/users/<login>/<app>.conf  /etc/Ostrand/policies
//   machine policy       <policyDir>/<app>.conf
// A policy file that its administrator does not own, or that group or others
// may write, is ignored with a logged warning. Writes take a lock file and
// replace the file whole, so that a reader never sees half of one.
#pragma once

#include "plat/String.h"
#include "xnutil/ConfigStore.h"
#include "xnutil/ConfigText.h"

#include <vector>

namespace xnutil {

/// Where the scopes live; tests point them at directories of their own.
struct ConfigStoreRoots {
  plat::String userDir; ///< null when the user has no place for settings
  plat::String machineDir;
  plat::String policyDir;
  unsigned policyOwner; ///< the account that must own policy files
  plat::String login;   ///< the user whose policy applies
};

/// The system's places, for the company and the current user.
ConfigStoreRoots defaultConfigStoreRoots(const char* company);

class ConfigStoreReg : public ConfigStore {
public:
  /// The store of application `app` (null: the running application's name)
  /// in the machine's scope or the user's.
  ConfigStoreReg(bool machine, ConfigStoreRoots roots, const char* app = nullptr);
  /// As above, in the system's places for the application's company.
  explicit ConfigStoreReg(bool machine);

  void loadValues(int priority, plat::Configuration* configuration) override;
  void loadPolicy(plat::Configuration* configuration) override;
  void saveChanges(const plat::Configuration& configuration,
                   const plat::Configuration& base) override;
  void saveParam(const plat::ConfigParameter& parameter) override;
  void removeParam(const plat::ConfigParameter& parameter) override;
  bool exists() override;

  /// The file of the preferences that this store reads and writes.
  const char* preferencesFile() const noexcept { return preferencesFile_.get(); }

private:
  void readFile(const char* path, int priority, plat::Configuration* configuration, bool policy);
  /// Sets each entry's value in the preferences, or removes it when null.
  void writeValues(const std::vector<ConfigEntry>& changes);

  bool machine_;
  ConfigStoreRoots roots_;
  plat::String app_;
  plat::String preferencesFile_;
};

} // namespace xnutil
