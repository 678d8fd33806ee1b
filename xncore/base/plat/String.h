// plat::String: the owning pointer to a NUL-terminated UTF-8 string that every
// textual value, map key and text-returning function of the system uses. It may
// be null, and null is a different value from the empty string.
#pragma once

#include <compare>
#include <cstddef>
#include <utility>

namespace plat {

class String {
public:
  String() noexcept = default;
  /// Duplicates `text`; null gives null.
  explicit String(const char* text);
  String(const String& other);
  String(String&& other) noexcept : data_(std::exchange(other.data_, nullptr)) {}
  String& operator=(const String& other);
  String& operator=(String&& other) noexcept;
  ~String();

  /// Takes ownership of a block allocated with new char[].
  static String adopt(char* block) noexcept;
  /// Gives up ownership; the caller frees with delete[].
  char* release() noexcept { return std::exchange(data_, nullptr); }

  const char* get() const noexcept { return data_; }
  char* data() noexcept { return data_; }
  bool isNull() const noexcept { return data_ == nullptr; }
  /// The text, or "" for null: for places that print.
  const char* orEmpty() const noexcept { return data_ ? data_ : ""; }

  friend bool operator==(const String& a, const String& b) noexcept;
  friend std::strong_ordering operator<=>(const String& a, const String& b) noexcept;
  friend bool operator==(const String& a, const char* b) noexcept;

private:
  char* data_ = nullptr;
};

/// Byte-wise comparison in which null is smaller than every string and two nulls are equal.
int compare(const char* a, const char* b) noexcept;

/// A new String of at most `maxLen` bytes of `text` (all of it when `maxLen` < 0); null gives null.
String strDup(const char* text, int maxLen = -1);

} // namespace plat
