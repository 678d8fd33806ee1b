// plat::DString: the growable UTF-8 string. The length is not stored; it is
// found by scanning, since the strings of this system are short. Capacity grows
// to the next power of two, so repeated appends stay linear.
#pragma once

#include "plat/Compiler.h"
#include "plat/String.h"

#include <cstdarg>
#include <cstdint>

namespace plat {

class DString {
public:
  DString() noexcept = default;
  explicit DString(const char* text) { append(text); }
  DString(const DString& other) : DString(other.data_) {}
  DString(DString&& other) noexcept;
  DString& operator=(const DString& other);
  DString& operator=(DString&& other) noexcept;
  virtual ~DString();

  const char* get() const noexcept { return data_; }
  char* data() noexcept { return data_; }
  bool isNull() const noexcept { return data_ == nullptr; }
  std::int32_t capacity() const noexcept { return capacity_; }
  /// Scans for the NUL; 0 when there is no buffer.
  int length() const noexcept;

  /// Makes room for `size` bytes, growing to the next power of two (at least 8).
  void ensure(int size);
  /// Appends at most `maxLen` bytes of `text` (all when `maxLen` < 0); null is a no-op.
  void append(const char* text, int maxLen = -1);
  /// Appends `codePoint` in UTF-8 `count` times.
  void appendChar(int codePoint, int count = 1);
  void appendFormat(const char* format, ...) XN_PRINTF_FORMAT(2, 3);
  void appendFormatV(const char* format, va_list args) XN_PRINTF_FORMAT(2, 0);
  /// Cuts the contents to `length` bytes; longer than the contents does nothing.
  void truncate(int length) noexcept;
  /// Makes the contents empty, keeping the buffer.
  void clear() noexcept { truncate(0); }

  /// Moves the buffer out; leaves this string with no buffer.
  String takeString() noexcept;
  /// Moves the raw block out; the caller frees it with delete[].
  char* takeBuffer() noexcept;

  /// Replaces every occurrence of `from`, left to right without overlap; a null `to` deletes.
  void replaceAll(const char* from, const char* to);
  /// Replaces bytes [begin, end) by at most `maxLen` bytes of `text`; out-of-range does nothing.
  void replaceRange(int begin, int end, const char* text, int maxLen = -1);
  /// Repairs invalid UTF-8 in place; true when something was repaired.
  bool makeValidUtf8();
  /// Rewraps the text to `width` columns (code points), continuation lines indented.
  void wordWrap(int width, int hangingIndent);

private:
  char* data_ = nullptr;
  std::int32_t capacity_ = 0;
};

/// A new string formatted with printf rules.
String strFormat(const char* format, ...) XN_PRINTF_FORMAT(1, 2);
String strFormatV(const char* format, va_list args) XN_PRINTF_FORMAT(1, 0);

/// `text` with every `from` replaced by `to`; `from` must not be empty.
String replaceAll(const char* text, const char* from, const char* to);

/// Word wrapping in the default locale, for help texts and banners.
String wrapText(const char* text, int width, int hangingIndent);

/// Appends `text` up to its next lone `marker`, a doubled marker standing for
/// one. Returns the character after that marker, or null when the text ended
/// first: the scanning step of the small languages that mark their fields so.
const char* appendUntilMarker(DString& out, const char* text, char marker);

} // namespace plat
