// plat::TypedParameter<T>: the value map of a parameter, shared by every typed
// class. It holds one value per priority, always including the default at 0;
// the value in force is the last entry, read afresh each time and never cached.
// Instantiated for bool, int, String and MBuf<unsigned char> only.
#pragma once

#include "plat/ConfigParameter.h"
#include "plat/MBuf.h"
#include "plat/String.h"

#include <map>
#include <memory>
#include <utility>

namespace plat {

template <class T>
class TypedParameter : public ConfigParameter {
public:
  /// Stores `value` at `priority`, logs the change and runs the callbacks,
  /// whether or not `priority` is the one in force. Storing what is already
  /// there does nothing; policy is refused for a parameter tagged "noPolicy".
  bool setValue(const T& value, int priority);

  void unset(int priority, bool notifyCallbacks) override;
  String getValueString() const override;
  int getPriority() const override;
  bool hasValueAt(int priority) const override;
  String getValueTextAt(int priority) const override;
  std::map<int, String> getAllValues() const override;

  const T& currentValue() const noexcept { return values_.rbegin()->second; }
  const T& defaultValue() const { return values_.at(priorityDefault); }

protected:
  TypedParameter(const char* name, const ParamDescription& description, T defaultValue,
                 bool advanced, Configuration* group, const char* tags);

  /// Gives `copy`, a new parameter of the same class, this one's values and tags.
  void copyStateTo(TypedParameter& copy) const;

  /// The body of every clone: a `Derived` made from this one's name and
  /// descriptions followed by `arguments`, then given this one's values and tags.
  template <class Derived, class... Arguments>
  std::unique_ptr<ConfigParameter> cloneAs(Arguments&&... arguments) const {
    auto copy = std::make_unique<Derived>(name(), ParamDescription::owned(desc(), locDesc()),
                                          std::forward<Arguments>(arguments)...);
    copyStateTo(*copy);
    return copy;
  }

private:
  std::map<int, T> values_;
};

extern template class TypedParameter<bool>;
extern template class TypedParameter<int>;
extern template class TypedParameter<String>;
extern template class TypedParameter<MBuf<unsigned char>>;

} // namespace plat
