// plat::ConfigParameter: one named, typed setting, declared as a static object
// beside the code that reads it. A parameter holds a value per priority (0 the
// declared default, 10 a preference, 30 and above policy); the value in force is
// the one of the highest priority that is set, so withdrawing a policy reveals
// the preference beneath it. Interested code registers a callback, which runs
// on the thread that made a change.
//
// The typed classes derive from TypedParameter<T>; this base holds what does
// not depend on the type: identity, texts, tags and callbacks.
#pragma once

#include "plat/NonCopyable.h"
#include "plat/String.h"

#include <list>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace plat {

class ConfigParameter;
class Configuration;
class LogSrc;

inline constexpr int priorityDefault = 0;
inline constexpr int priorityPreference = 10;
inline constexpr int priorityPolicy = 30;

bool isPriorityPolicy(int priority) noexcept;

/// The name of `priority` in logs: "Default", "Preference", "Policy" (or
/// "Policy overriding preference" when `preferenceBelow`), else "Priority %d".
String priorityName(int priority, bool preferenceBelow);

class ParameterChangedCallback {
public:
  virtual ~ParameterChangedCallback() = default;
  /// Runs after a value at `priority` was stored or removed; that need not be
  /// the priority in force, so a callback reads the current value itself.
  virtual void paramChanged(ConfigParameter* parameter, int priority) = 0;
};

/// The catalog key of a description, for declaring a parameter whose help
/// text is translated: `StringParameter p("Name", DescKey{"lib_key"}, "")`.
struct DescKey {
  const char* key;
};

/// How a parameter is described: a literal text, a catalog key, or both.
struct ParamDescription {
  ParamDescription(const char* literal) : desc(literal) {}
  ParamDescription(DescKey key) : locDesc(key.key) {}
  ParamDescription(const char* literal, const char* key) : desc(literal), locDesc(key) {}

  /// For parameters made at run time: they keep copies of all their texts.
  static ParamDescription owned(const char* literal, const char* key) {
    ParamDescription description(literal, key);
    description.ownsText = true;
    return description;
  }

  const char* desc = nullptr;
  const char* locDesc = nullptr;
  bool ownsText = false;
};

class ConfigParameter : NonCopyable {
public:
  virtual ~ConfigParameter();

  /// Parses `value` and stores it; false when the text is rejected.
  virtual bool setFromString(const char* value, int priority) = 0;
  /// Removes the value at `priority`; the default at 0 is never removed.
  virtual void unset(int priority, bool notifyCallbacks) = 0;
  virtual bool setInt(int value, int priority);
  virtual String getValueString() const = 0;
  virtual int getInt() const;
  /// The highest priority that holds a value.
  virtual int getPriority() const = 0;
  virtual bool hasValueAt(int priority) const = 0;
  /// The value at `priority` for display, or null when there is none.
  virtual String getValueTextAt(int priority) const = 0;
  virtual std::map<int, String> getAllValues() const = 0;
  virtual const char* typeName() const = 0;
  /// A parameter of the same class in `group` with all values, tags and
  /// (copied) texts, and without callbacks.
  virtual std::unique_ptr<ConfigParameter> clone(Configuration* group) const = 0;
  virtual String valueToString(int value) const;

  const char* name() const noexcept { return name_; }
  const char* desc() const noexcept { return desc_; }
  const char* locDesc() const noexcept { return locDesc_; }
  Configuration* group() const noexcept { return group_; }
  /// The parameter declared before this one in the same group.
  ConfigParameter* next() const noexcept { return next_; }
  bool ownsText() const noexcept { return ownsText_; }

  /// The literal description, else the text of the catalog key.
  const char* getDescription() const;
  /// The text of the value at priority 0.
  String getDefault() const;
  bool hasTag(const char* tag) const;
  /// Adds each piece of the comma-separated `tags`; null adds nothing.
  void addTags(const char* tags);
  const std::set<String>& tags() const noexcept { return tags_; }
  bool isAdvanced() const;

  /// Appends `callback`, which is not owned and must outlive the parameter's use.
  void addCallback(ParameterChangedCallback* callback);
  void notify(int priority);
  /// Calls back with priority 0 while the default is in force, so that a
  /// component that has just registered sees the initial value by the same path.
  void notifyIfDefault();
  /// Drops every value above the default; false when the default was in force.
  bool reset(bool notifyCallbacks);
  /// Makes priorities and values equal to `other`'s.
  void syncFrom(const ConfigParameter& other);

protected:
  ConfigParameter(const char* name, const ParamDescription& description, bool advanced,
                  Configuration* group, const char* tags);

  bool advanced() const noexcept { return advanced_; }
  /// `text` itself, or an owned copy when this parameter owns its texts.
  const char* keepText(const char* text);
  void copyTagsFrom(const ConfigParameter& other) { tags_ = other.tags_; }
  /// Whether changes are logged, as the group says.
  bool tracing() const noexcept;
  /// The source "ConfigParameter" on which changes and rejections are logged.
  static LogSrc& log();

private:
  friend class Configuration;

  Configuration* group_;
  ConfigParameter* next_ = nullptr;
  const char* name_ = nullptr;
  const char* desc_ = nullptr;
  const char* locDesc_ = nullptr;
  bool advanced_;
  bool ownsText_;
  std::set<String> tags_;
  std::list<ParameterChangedCallback*> callbacks_;
  std::vector<String> ownedTexts_;
};

} // namespace plat
