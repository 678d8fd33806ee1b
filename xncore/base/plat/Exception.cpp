#include "plat/Exception.h"

#include <cerrno>
#include <cstring>

#include "plat/Assertion.h"
#include "plat/BoundedAppend.h"
#include "plat/SystemError.h"

namespace plat {

Exception::Exception() noexcept {
  message_[0] = '\0';
  type_[0] = '\0';
}

Exception::Exception(const char* text) noexcept : Exception() { appendMessage(text); }

Exception::Exception(FormatTag, const char* format, ...) noexcept : Exception() {
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
}

Exception& Exception::setType(const char* type) noexcept {
  type_[0] = '\0';
  appendBounded(type_, textSize, type);
  return *this;
}

bool Exception::isType(const char* kind) const noexcept {
  std::size_t length = std::strlen(kind);
  return std::strncmp(type_, kind, length) == 0 && (type_[length] == '\0' || type_[length] == '/');
}

String Exception::typeKind() const { return strDup(type_, static_cast<int>(std::strcspn(type_, "/"))); }

const char* Exception::typeDetail() const noexcept {
  const char* slash = std::strchr(type_, '/');
  return slash ? slash + 1 : nullptr;
}

void Exception::appendMessage(const char* text) noexcept { appendBounded(message_, textSize, text); }

void Exception::appendMessageFormat(const char* format, ...) noexcept {
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
}

void Exception::appendMessageFormatV(const char* format, va_list args) noexcept {
  appendBoundedFormatV(message_, textSize, format, args);
}

void Exception::setTypeFormat(const char* format, ...) noexcept {
  type_[0] = '\0';
  va_list args;
  va_start(args, format);
  appendBoundedFormatV(type_, textSize, format, args);
  va_end(args);
}

std::size_t Exception::messageLength() const noexcept { return std::strlen(message_); }

ExceptionFmt::ExceptionFmt(const char* format, ...) noexcept {
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
}

SystemException::SystemException(const char* text, int code) noexcept : code_(code) {
  appendMessage(text);
  appendSystemText();
}

void SystemException::appendSystemText() noexcept {
  setTypeFormat("System/%d", code_);
  if (messageLength() > 0)
    appendMessage(": ");
  char text[textSize];
  systemErrorText(code_, text, sizeof text);
  std::size_t length = std::strlen(text);
  if (length >= 2 && text[length - 2] == '\r' && text[length - 1] == '\n')
    text[length - 2] = '\0';
  appendMessage(text);
  appendMessageFormat(code_ < 0 ? " (%x)" : " (%d)", code_);
}

SystemExceptionFmt::SystemExceptionFmt(const char* format, int code, ...) noexcept
    : SystemException(code) {
  va_list args;
  va_start(args, code);
  appendMessageFormatV(format, args);
  va_end(args);
  appendSystemText();
}

StdlibException::StdlibException(const char* format, ...) noexcept {
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
  code_ = errno; // after formatting, as the caller's text may have been built from errno
  appendLibraryText();
}

StdlibException::StdlibException(int code, const char* format, ...) noexcept : code_(code) {
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
  appendLibraryText();
}

void StdlibException::appendLibraryText() noexcept {
  setTypeFormat("Stdlib/%d", code_);
  if (messageLength() > 0)
    appendMessage(": ");
  char text[textSize];
  libraryErrorText(code_, text, sizeof text);
  appendMessage(text);
  appendMessageFormat(" (%d)", code_);
}

BadUtf8::BadUtf8(const char* text) noexcept : Exception(text) { finish(); }

BadUtf8::BadUtf8(FormatTag, const char* format, ...) noexcept {
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
  finish();
}

void BadUtf8::finish() noexcept {
  setType("BadUtf8");
  if (badUtf8Asserts())
    assertionFailed(AssertionFail("!badUtf8Assert", __FILE__, __LINE__).addDetail("%s", what()));
}

DynamicFnLoadFailed::DynamicFnLoadFailed(const char* library, const char* function) noexcept {
  appendMessageFormat("Function %s not found in %s library", function, library);
  setType("DynamicFnLoadFailed");
}

} // namespace plat
