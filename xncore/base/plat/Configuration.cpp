#include "plat/Configuration.h"

#include "plat/Assertion.h"
#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/DString.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"
#include "plat/TextKeys.h"

namespace plat {

namespace {

template <class P>
P& typedParam(const Configuration& configuration, const char* name) {
  P* p = dynamic_cast<P*>(configuration.getParam(name));
  XN_ASSERT_THROW(p);
  return *p;
}

} // namespace

Configuration::Configuration(const char* name, const char* titleKey)
    : name_(name), locDesc_(titleKey) {}

Configuration::Configuration(const Configuration& other)
    : name_(other.name_), locDesc_(other.locDesc_) {
  assign(other);
}

Configuration::~Configuration() {
  removeAllParams();
}

Configuration& Configuration::global() {
  // Never destroyed, so that static parameters can unlink themselves at exit
  // in any order.
  static Configuration* root =
      new Configuration("Global", textkey::plat_configuration_global_params);
  return *root;
}

void Configuration::forEachParam(const std::function<void(ConfigParameter&)>& visit) const {
  for (ConfigParameter* parameter = params_; parameter; parameter = parameter->next_)
    visit(*parameter);
  for (const Configuration* subgroup : subgroups_)
    subgroup->forEachParam(visit);
}

void Configuration::assign(const Configuration& other) {
  for (const auto& [aliasName, alias] : other.aliases_)
    aliases_.emplace(aliasName, alias);
  copyValues(other, true, true);
}

void Configuration::copyValues(const Configuration& other, bool addMissing, bool recurse) {
  auto visit = [&](ConfigParameter& parameter) { syncOrClone(parameter, addMissing, recurse); };
  if (recurse) {
    other.forEachParam(visit);
    return;
  }
  for (ConfigParameter* parameter = other.params_; parameter; parameter = parameter->next_)
    visit(*parameter);
}

void Configuration::syncOrClone(const ConfigParameter& parameter, bool addMissing, bool recurse) {
  ConfigParameter* mine = findParam(parameter.name(), recurse);
  if (mine) {
    if (mine != &parameter)
      mine->syncFrom(parameter);
  } else if (addMissing) {
    own(parameter.clone(this));
  }
}

template <class P>
P* Configuration::own(std::unique_ptr<P> parameter) {
  P* raw = parameter.get();
  ownedParams_.push_back(std::shared_ptr<ConfigParameter>(std::move(parameter)));
  return raw;
}

BinaryParameter* Configuration::addBinary(const char* name, const ParamDescription& description,
                                          const MBuf<unsigned char>& defaultValue, bool advanced,
                                          const char* tags) {
  return own(std::make_unique<BinaryParameter>(
      name, ParamDescription::owned(description.desc, description.locDesc), defaultValue, advanced,
      this, tags));
}

BoolParameter* Configuration::addBool(const char* name, const ParamDescription& description,
                                      bool defaultValue, bool advanced, const char* tags) {
  return own(std::make_unique<BoolParameter>(
      name, ParamDescription::owned(description.desc, description.locDesc), defaultValue, advanced,
      this, tags));
}

EnumParameter* Configuration::addEnum(const char* name, const ParamDescription& description,
                                      const char* defaultName, const char* const* names,
                                      bool advanced, const char* tags) {
  return own(std::make_unique<EnumParameter>(
      name, ParamDescription::owned(description.desc, description.locDesc), defaultName, names,
      advanced, this, tags));
}

IntParameter* Configuration::addInt(const char* name, const ParamDescription& description,
                                    int defaultValue, bool advanced, int min, int max,
                                    const char* tags) {
  return own(std::make_unique<IntParameter>(
      name, ParamDescription::owned(description.desc, description.locDesc), defaultValue, advanced,
      this, min, max, tags));
}

S64Parameter* Configuration::addS64(const char* name, const ParamDescription& description,
                                    std::int64_t defaultValue, bool advanced, const char* tags) {
  return own(std::make_unique<S64Parameter>(
      name, ParamDescription::owned(description.desc, description.locDesc), defaultValue, advanced,
      this, tags));
}

StringParameter* Configuration::addString(const char* name, const ParamDescription& description,
                                          const char* defaultValue, bool advanced,
                                          const char* tags) {
  return own(std::make_unique<StringParameter>(
      name, ParamDescription::owned(description.desc, description.locDesc), defaultValue, advanced,
      this, tags));
}

void Configuration::addSubgroup(Configuration* group, bool add) {
  bool present = false;
  for (const Configuration* subgroup : subgroups_)
    present = present || subgroup == group;
  if (add && !present)
    subgroups_.push_back(group);
  else if (!add)
    subgroups_.remove(group);
}

void Configuration::addAlias(const char* aliasName, const ParameterAlias* alias) {
  aliases_[String(aliasName)] = alias;
}

void Configuration::removeAllParams() {
  ownedParams_.clear();
  // Declared parameters that outlive their place here must not reach back.
  while (params_) {
    ConfigParameter* parameter = params_;
    params_ = parameter->next_;
    parameter->next_ = nullptr;
    parameter->group_ = nullptr;
  }
}

ConfigParameter* Configuration::findParam(const char* name, bool recurse) const {
  for (ConfigParameter* parameter = params_; parameter; parameter = parameter->next_) {
    if (equalsNoCase(parameter->name(), name))
      return parameter;
  }
  if (recurse) {
    for (const Configuration* subgroup : subgroups_) {
      if (ConfigParameter* found = subgroup->findParam(name, true))
        return found;
    }
  }
  return nullptr;
}

ConfigParameter* Configuration::getParam(const char* name) const {
  ConfigParameter* parameter = findParam(name, true);
  if (!parameter)
    throw Exception(formatted, "Parameter %s not found", name);
  return parameter;
}

void Configuration::getBinary(const char* name, MBuf<unsigned char>& out) const {
  typedParam<BinaryParameter>(*this, name).getBinary(out);
}

bool Configuration::getBool(const char* name) const {
  return typedParam<BoolParameter>(*this, name);
}

bool Configuration::getBool(const char* name, bool defaultValue) const {
  try {
    return getBool(name);
  } catch (const Exception&) {
    return defaultValue;
  }
}

int Configuration::getEnum(const char* name) const {
  return typedParam<EnumParameter>(*this, name);
}

int Configuration::getInt(const char* name) const {
  return typedParam<IntParameter>(*this, name);
}

std::int64_t Configuration::getS64(const char* name) const {
  return typedParam<S64Parameter>(*this, name).getS64();
}

String Configuration::getString(const char* name) const {
  return typedParam<StringParameter>(*this, name);
}

bool Configuration::setParam(const char* name, const char* value, int priority) {
  if (!name)
    return false;
  auto alias = aliases_.find(String(name));
  if (alias != aliases_.end()) {
    ParamValueMap targets;
    if (!alias->second->expand(name, value, targets))
      return false;
    if (targets.empty())
      return true;
    bool anyTaken = false;
    for (const auto& [target, targetValue] : targets) {
      if (setParam(target.get(), targetValue.get(), priority))
        anyTaken = true;
    }
    return anyTaken;
  }
  if (ConfigParameter* parameter = findParam(name, false))
    return parameter->setFromString(value, priority);
  for (Configuration* subgroup : subgroups_) {
    if (subgroup->setParam(name, value, priority))
      return true;
  }
  return false;
}

void Configuration::getValuesAt(int priority, ParamValueMap& out) const {
  forEachParam([&](ConfigParameter& parameter) {
    if (parameter.hasValueAt(priority))
      out.emplace(String(parameter.name()), parameter.getAllValues().at(priority));
  });
}

bool Configuration::sameValues(const Configuration& other) const {
  bool same = true;
  forEachParam([&](ConfigParameter& parameter) {
    ConfigParameter* theirs = other.findParam(parameter.name(), true);
    if (!theirs || parameter.getValueString() != theirs->getValueString())
      same = false;
  });
  return same;
}

String Configuration::differentNames(const Configuration& other) const {
  DString names;
  names.ensure(1);
  forEachParam([&](ConfigParameter& parameter) {
    ConfigParameter* theirs = other.findParam(parameter.name(), true);
    if (!theirs || parameter.getValueString() == theirs->getValueString())
      return;
    if (names.length() > 0)
      names.append(",");
    names.append(parameter.name());
  });
  return names.takeString();
}

void Configuration::applyDifferences(Configuration& target, const Configuration& other) const {
  forEachParam([&](ConfigParameter& parameter) {
    ConfigParameter* theirs = other.findParam(parameter.name(), true);
    String text = parameter.getValueString();
    if (theirs && text != theirs->getValueString())
      target.setParam(parameter.name(), text.get(), parameter.getPriority());
  });
}

void Configuration::migrateAliases(AliasStore& store) const {
  for (const auto& [aliasName, alias] : aliases_) {
    String stored;
    if (!store.get(aliasName.get(), stored))
      continue;
    ParamValueMap targets;
    if (alias->expand(aliasName.get(), stored.get(), targets)) {
      for (const auto& [target, value] : targets) {
        String existing;
        if (!store.get(target.get(), existing))
          store.set(target.get(), value.get());
      }
    }
    store.remove(aliasName.get());
  }
  for (const Configuration* subgroup : subgroups_)
    subgroup->migrateAliases(store);
}

} // namespace plat
