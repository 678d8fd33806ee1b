// plat::Exception and the failures that every Part shares. An exception keeps
// its text in two fixed 256-byte fields, so raising or copying one never
// allocates; text that does not fit is cut on a character boundary.
#pragma once

#include "plat/Compiler.h"
#include "plat/String.h"

#include <cstdarg>
#include <cstddef>

namespace plat {

/// Marks the constructors that take a printf format rather than a plain text.
struct FormatTag {};
inline constexpr FormatTag formatted{};

class Exception {
public:
  static constexpr std::size_t textSize = 256;

  Exception() noexcept;
  explicit Exception(const char* text) noexcept;
  Exception(FormatTag, const char* format, ...) noexcept XN_PRINTF_FORMAT(3, 4);
  virtual ~Exception() = default;

  const char* what() const noexcept { return message_; }
  const char* type() const noexcept { return type_; }

  /// Replaces the type; returns the exception so that it can be thrown at once.
  Exception& setType(const char* type) noexcept;
  /// True when the type is `kind` or starts with `kind` followed by '/'.
  bool isType(const char* kind) const noexcept;
  /// The type up to the first '/'.
  String typeKind() const;
  /// The type after the first '/', or null without one.
  const char* typeDetail() const noexcept;

protected:
  void appendMessage(const char* text) noexcept;
  void appendMessageFormat(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
  void appendMessageFormatV(const char* format, va_list args) noexcept XN_PRINTF_FORMAT(2, 0);
  void setTypeFormat(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
  std::size_t messageLength() const noexcept;

private:
  char message_[textSize];
  char type_[textSize];
};

class ExceptionFmt : public Exception {
public:
  explicit ExceptionFmt(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
};

/// A failed call of the operating system: the caller's text, then the system's
/// own text for the error code.
class SystemException : public Exception {
public:
  SystemException(const char* text, int code) noexcept;
  int code() const noexcept { return code_; }

protected:
  explicit SystemException(int code) noexcept : code_(code) {}
  void appendSystemText() noexcept;

private:
  int code_;
};

class SystemExceptionFmt : public SystemException {
public:
  SystemExceptionFmt(const char* format, int code, ...) noexcept XN_PRINTF_FORMAT(2, 4);
};

/// A failed call of the C library: the caller's text, then the library's text
/// for the error number, which is read from errno unless given.
class StdlibException : public Exception {
public:
  explicit StdlibException(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);
  StdlibException(int code, const char* format, ...) noexcept XN_PRINTF_FORMAT(3, 4);
  int code() const noexcept { return code_; }

private:
  void appendLibraryText() noexcept;

  int code_ = 0;
};

class BadNum : public Exception {
public:
  explicit BadNum(const char* text) noexcept : Exception(text) {}
};

/// Invalid UTF-8 where valid text was required. While bad UTF-8 is set to
/// assert, constructing one is a fatal assertion instead, for a stack trace.
class BadUtf8 : public Exception {
public:
  explicit BadUtf8(const char* text) noexcept;
  BadUtf8(FormatTag, const char* format, ...) noexcept XN_PRINTF_FORMAT(3, 4);

private:
  void finish() noexcept;
};

/// Whether a BadUtf8 turns into a fatal assertion: the parameter _BadUtf8Assert.
bool badUtf8Asserts() noexcept;
/// Sets _BadUtf8Assert at priority 10, as the command line would.
void setBadUtf8Asserts(bool on) noexcept;

class DynamicFnLoadFailed : public Exception {
public:
  DynamicFnLoadFailed(const char* library, const char* function) noexcept;
};

} // namespace plat
