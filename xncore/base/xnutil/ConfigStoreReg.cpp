#include "xnutil/ConfigStoreReg.h"

#include "os/AppInfo.h"
#include "plat/Assertion.h"
#include "plat/ConfigParameter.h"
#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/Configuration.h"
#include "plat/Path.h"

namespace xnutil {

namespace {

plat::String preferencesPath(bool machine, const ConfigStoreRoots& roots, const char* app) {
  const plat::String& dir = machine ? roots.machineDir : roots.userDir;
  if (dir.isNull())
    return plat::String();
  return plat::pathJoin(dir.get(), plat::strFormat("%s.conf", app).get());
}

} // namespace

ConfigStoreReg::ConfigStoreReg(bool machine, ConfigStoreRoots roots, const char* app)
    : machine_(machine), roots_(std::move(roots)), app_(app ? app : os::getApp(false)),
      preferencesFile_(preferencesPath(machine, roots_, app_.get())) {}

ConfigStoreReg::ConfigStoreReg(bool machine)
    : ConfigStoreReg(machine, defaultConfigStoreRoots(os::getCompany(false))) {}

void ConfigStoreReg::loadValues(int priority, plat::Configuration* configuration) {
  XN_ASSERT(!plat::isPriorityPolicy(priority));
  readFile(preferencesFile_.get(), priority, configuration, false);
}

void ConfigStoreReg::loadPolicy(plat::Configuration* configuration) {
  plat::String file = plat::strFormat("%s.conf", app_.get());
  if (!machine_ && !roots_.login.isNull()) {
    plat::String users = plat::pathJoin(roots_.policyDir.get(), "users");
    plat::String mine = plat::pathJoin(users.get(), roots_.login.get());
    readFile(plat::pathJoin(mine.get(), file.get()).get(), plat::priorityPolicy, configuration,
             true);
  }
  readFile(plat::pathJoin(roots_.policyDir.get(), file.get()).get(), plat::priorityPolicy,
           configuration, true);
}

void ConfigStoreReg::saveChanges(const plat::Configuration& configuration,
                                 const plat::Configuration& base) {
  std::vector<ConfigEntry> changes;
  configuration.forEachParam([&](plat::ConfigParameter& parameter) {
    const plat::ConfigParameter* before = base.findParam(parameter.name(), true);
    if (!before)
      return;
    plat::String now = parameter.getValueString();
    if (plat::compare(now.get(), before->getValueString().get()) != 0)
      changes.emplace_back(plat::String(parameter.name()), std::move(now));
  });
  if (!changes.empty())
    writeValues(changes);
}

void ConfigStoreReg::saveParam(const plat::ConfigParameter& parameter) {
  std::vector<ConfigEntry> change;
  change.emplace_back(plat::String(parameter.name()), parameter.getValueString());
  writeValues(change);
}

void ConfigStoreReg::removeParam(const plat::ConfigParameter& parameter) {
  std::vector<ConfigEntry> change;
  change.emplace_back(plat::String(parameter.name()), plat::String());
  try {
    writeValues(change);
  } catch (const plat::Exception&) {
    // Removing what is not there, or cannot be, is no error.
  }
}

} // namespace xnutil
