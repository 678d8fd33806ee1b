#include "plat/TypedParameter.h"

#include "plat/BinToHex.h"
#include "plat/LogSrc.h"
#include "plat/StringUtils.h"

#include <algorithm>

namespace plat {

namespace {

template <class T>
bool sameValue(const T& a, const T& b) {
  return a == b;
}

bool sameValue(const MBuf<unsigned char>& a, const MBuf<unsigned char>& b) {
  return a.length() == b.length() && std::equal(a.data(), a.data() + a.length(), b.data());
}

// The text form of a value, as getValueString and the stores see it.
String valueText(const ConfigParameter& parameter, bool value) {
  return parameter.valueToString(value ? 1 : 0);
}
String valueText(const ConfigParameter& parameter, int value) {
  return parameter.valueToString(value);
}
String valueText(const ConfigParameter&, const String& value) {
  return value;
}
String valueText(const ConfigParameter&, const MBuf<unsigned char>& value) {
  return binToHex(value);
}

// The form for logs and value dumps, which never show binary data.
template <class T>
String displayText(const ConfigParameter& parameter, const T& value) {
  return valueText(parameter, value);
}
String displayText(const ConfigParameter&, const MBuf<unsigned char>&) {
  return String("<binary>");
}

} // namespace

template <class T>
TypedParameter<T>::TypedParameter(const char* name, const ParamDescription& description,
                                  T defaultValue, bool advanced, Configuration* group,
                                  const char* tags)
    : ConfigParameter(name, description, advanced, group, tags) {
  values_.emplace(priorityDefault, std::move(defaultValue));
}

template <class T>
bool TypedParameter<T>::setValue(const T& value, int priority) {
  if (isPriorityPolicy(priority) && hasTag("noPolicy"))
    return false;
  auto existing = values_.find(priority);
  if (existing != values_.end() && sameValue(existing->second, value))
    return true;
  values_[priority] = value;
  if (tracing()) {
    log().write(priority < 1 ? LogSrc::levelTrace : LogSrc::levelDebug,
                "set %s(%s) to %s, priority %d", name(), typeName(), getValueTextAt(priority).get(),
                priority);
  }
  notify(priority);
  return true;
}

template <class T>
void TypedParameter<T>::unset(int priority, bool notifyCallbacks) {
  if (priority == priorityDefault || !values_.erase(priority))
    return;
  if (tracing()) {
    int now = getPriority();
    log().debug("unset %s(%s) priority %d, now %s, priority %d", name(), typeName(), priority,
                getValueTextAt(now).get(), now);
  }
  if (notifyCallbacks)
    notify(priority);
}

template <class T>
String TypedParameter<T>::getValueString() const {
  return valueText(*this, currentValue());
}

template <class T>
int TypedParameter<T>::getPriority() const {
  return values_.rbegin()->first;
}

template <class T>
bool TypedParameter<T>::hasValueAt(int priority) const {
  return values_.count(priority) > 0;
}

template <class T>
String TypedParameter<T>::getValueTextAt(int priority) const {
  auto entry = values_.find(priority);
  return entry == values_.end() ? String() : displayText(*this, entry->second);
}

template <class T>
std::map<int, String> TypedParameter<T>::getAllValues() const {
  std::map<int, String> all;
  for (const auto& [priority, value] : values_)
    all.emplace(priority, valueText(*this, value));
  return all;
}

template <class T>
void TypedParameter<T>::copyStateTo(TypedParameter& copy) const {
  copy.values_ = values_;
  copy.copyTagsFrom(*this);
}

template class TypedParameter<bool>;
template class TypedParameter<int>;
template class TypedParameter<String>;
template class TypedParameter<MBuf<unsigned char>>;

} // namespace plat
