// plat::Configuration: a named group of parameters with subgroups. The process
// has one root, global(), named "Global", in which every declared parameter
// registers during static initialisation. The command line, the stores and the
// application all set parameters by name through a group.
//
// A group links its declared parameters (newest first) without owning them;
// parameters made at run time, by add* and by copying, are owned here.
#pragma once

#include "plat/ConfigParameter.h"
#include "plat/MBuf.h"
#include "plat/NameCompare.h"
#include "plat/ParameterAlias.h"
#include "plat/String.h"

#include <cstdint>
#include <cstdio>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <vector>

namespace plat {

class BinaryParameter;
class BoolParameter;
class EnumParameter;
class IntParameter;
class S64Parameter;
class StringParameter;

class Configuration {
public:
  /// Called for a help request on the command line, with one of the modes below.
  using HelpFunction = std::function<void(int mode, Configuration& configuration)>;
  static constexpr int helpPlain = 0;
  static constexpr int helpAll = 1;
  static constexpr int helpXml = 2;

  /// A store of settings by name, whose retired names migrateAliases rewrites.
  class AliasStore {
  public:
    virtual ~AliasStore() = default;
    /// True when `name` exists; its text goes to `value`.
    virtual bool get(const char* name, String& value) = 0;
    virtual void set(const char* name, const char* value) = 0;
    virtual void remove(const char* name) = 0;
  };

  /// `name` is copied; `titleKey`, a catalog key or null, is kept as a pointer.
  Configuration(const char* name, const char* titleKey);
  /// Copies name and title, then everything as assign() does.
  Configuration(const Configuration& other);
  Configuration& operator=(const Configuration&) = delete;
  ~Configuration();

  /// The root group, built on first use from any thread or static initialiser.
  static Configuration& global();

  const char* name() const noexcept { return name_.get(); }
  const char* titleKey() const noexcept { return locDesc_; }
  bool traceChanges() const noexcept { return traceChanges_; }
  void setTraceChanges(bool trace) noexcept { traceChanges_ = trace; }
  /// This group's own parameters, newest first; follow ConfigParameter::next().
  ConfigParameter* firstParam() const noexcept { return params_; }
  const std::list<Configuration*>& subgroups() const noexcept { return subgroups_; }

  /// Calls `visit` for each parameter of this group, then depth first for
  /// those of the subgroups.
  void forEachParam(const std::function<void(ConfigParameter&)>& visit) const;

  /// Makes this group hold `other`'s aliases and values: parameters it has
  /// are synced, the rest are cloned into it.
  void assign(const Configuration& other);
  /// As assign without aliases; `addMissing` clones unknown parameters,
  /// `recurse` includes subgroups on both sides.
  void copyValues(const Configuration& other, bool addMissing, bool recurse);

  // Parameters made at run time, owned by this group, with copies of their texts.
  BinaryParameter* addBinary(const char* name, const ParamDescription& description,
                             const MBuf<unsigned char>& defaultValue, bool advanced = false,
                             const char* tags = nullptr);
  BoolParameter* addBool(const char* name, const ParamDescription& description, bool defaultValue,
                         bool advanced = false, const char* tags = nullptr);
  EnumParameter* addEnum(const char* name, const ParamDescription& description,
                         const char* defaultName, const char* const* names, bool advanced = false,
                         const char* tags = nullptr);
  IntParameter* addInt(const char* name, const ParamDescription& description, int defaultValue,
                       bool advanced = false, int min = INT32_MIN, int max = INT32_MAX,
                       const char* tags = nullptr);
  S64Parameter* addS64(const char* name, const ParamDescription& description,
                       std::int64_t defaultValue, bool advanced = false,
                       const char* tags = nullptr);
  StringParameter* addString(const char* name, const ParamDescription& description,
                             const char* defaultValue, bool advanced = false,
                             const char* tags = nullptr);

  /// With `add`, appends `group` unless present; without, removes it.
  void addSubgroup(Configuration* group, bool add = true);
  /// Enters `alias`, not owned, under `aliasName`.
  void addAlias(const char* aliasName, const ParameterAlias* alias);
  /// Ends the parameters this group owns and unlinks the declared ones.
  void removeAllParams();

  /// Null when there is no parameter of that name.
  ConfigParameter* findParam(const char* name, bool recurse = true) const;
  /// Raises Exception "Parameter %s not found".
  ConfigParameter* getParam(const char* name) const;

  // Current values by name. A parameter of another type throws AssertionFail.
  void getBinary(const char* name, MBuf<unsigned char>& out) const;
  bool getBool(const char* name) const;
  /// `defaultValue` when the parameter is missing or of another type.
  bool getBool(const char* name, bool defaultValue) const;
  int getEnum(const char* name) const;
  int getInt(const char* name) const;
  std::int64_t getS64(const char* name) const;
  String getString(const char* name) const;

  /// Sets by name, through aliases and then subgroups; false when no
  /// parameter took the value. An unknown name is not an error here.
  bool setParam(const char* name, const char* value, int priority);

  /// Applies one "-name=value", "--name=value", "name=value" or "-flag".
  bool setParamFromArg(const char* argument, int priority);
  /// Applies the null-terminated `argv` (program name excluded) at priority
  /// 10. A help request calls `help`; an argument that cannot be applied
  /// raises Exception of type "BadCmdLineArg". Earlier arguments stay set.
  void parseArgs(const char* const* argv, const HelpFunction& help);
  /// As parseArgs, but stops without raising and leaves `cursor` on the first
  /// argument not taken. False after a help request was handed to `help`.
  bool parseArgsNoThrow(const char* const*& cursor, const HelpFunction& help);
  /// Applies the argument at `cursor`, or it and the next, and moves past them.
  bool parseOneArg(const char* const*& cursor);

  /// Prints the usage and the parameter list of this group and its subgroups.
  /// `all` includes advanced parameters, log names and destinations.
  void printHelp(bool all, bool showDefaults, std::FILE* out = stdout) const;
  /// Logs every public parameter with its value and where it came from, on
  /// log source "Configuration".
  void logValues() const;

  /// `out[name] = value` for every parameter with a value at exactly `priority`.
  void getValuesAt(int priority, ParamValueMap& out) const;
  /// True when every parameter here exists in `other` with the same current text.
  bool sameValues(const Configuration& other) const;
  /// The names, comma-separated, of parameters whose text differs in `other`.
  String differentNames(const Configuration& other) const;
  /// For each parameter whose text differs from `other`'s, sets `target`'s
  /// parameter of that name to this text at this parameter's priority.
  void applyDifferences(Configuration& target, const Configuration& other) const;
  /// Rewrites the aliases of this group and its subgroups held in `store` as
  /// their targets; a target already in the store keeps its value.
  void migrateAliases(AliasStore& store) const;

private:
  friend class ConfigParameter;

  template <class P>
  P* own(std::unique_ptr<P> parameter);
  void syncOrClone(const ConfigParameter& parameter, bool addMissing, bool recurse);

  String name_;
  const char* locDesc_;
  ConfigParameter* params_ = nullptr;
  std::list<Configuration*> subgroups_;
  std::vector<std::shared_ptr<ConfigParameter>> ownedParams_;
  std::map<String, const ParameterAlias*, NoCaseLess> aliases_;
  bool traceChanges_ = true;
};

} // namespace plat
