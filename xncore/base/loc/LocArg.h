// loc::LocArg: one argument of a translated format text, a node of a singly
// linked list. Lists are short and built on the stack by the caller, usually
// through loc::formatText, so no argument is copied.
#pragma once

#include <cstdint>

namespace loc {

class LocArg {
public:
  static constexpr int typeSigned = 0;
  static constexpr int typeUnsigned = 1;
  static constexpr int typeString = 2;

  LocArg(int value, const LocArg* next = nullptr) noexcept
      : type_(typeSigned), intValue_(value), next_(next) {}
  LocArg(unsigned value, const LocArg* next = nullptr) noexcept
      : type_(typeUnsigned), uintValue_(value), next_(next) {}
  /// `value` is not copied; null reads as the empty text.
  LocArg(const char* value, const LocArg* next = nullptr) noexcept
      : type_(typeString), stringValue_(value), next_(next) {}

  int type() const noexcept { return type_; }
  std::int32_t intValue() const noexcept { return intValue_; }
  std::uint32_t uintValue() const noexcept { return uintValue_; }
  const char* stringValue() const noexcept { return stringValue_ ? stringValue_ : ""; }
  const LocArg* next() const noexcept { return next_; }
  void setNext(const LocArg* next) noexcept { next_ = next; }

private:
  int type_;
  std::int32_t intValue_ = 0;
  std::uint32_t uintValue_ = 0;
  const char* stringValue_ = nullptr;
  const LocArg* next_;
};

} // namespace loc
