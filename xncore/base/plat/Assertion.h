// Broken invariants. Almost every check is fatal: it reports the expression,
// file and line, and ends the process with status 1 without running
// destructors. Checks that guard an argument a caller may handle throw the
// AssertionFail instead, and a few only warn.
#pragma once

#include <cstdarg>
#include <typeinfo>

#include "plat/Compiler.h"
#include "plat/Exception.h"

namespace plat {

class AssertionFail : public Exception {
public:
  AssertionFail(const char* expression, const char* file, int line) noexcept;

  /// Appends ": " and the formatted detail to the message.
  AssertionFail& addDetail(const char* format, ...) noexcept XN_PRINTF_FORMAT(2, 3);

  const char* expression() const noexcept { return expression_; }
  const char* file() const noexcept { return file_; }
  int line() const noexcept { return line_; }

private:
  // Always string literals from the check's site, so keeping the pointers is safe.
  const char* expression_;
  const char* file_;
  int line_;
};

/// The fatal path: reports and ends the process with status 1.
[[noreturn]] void assertionFailed(const AssertionFail& fail) noexcept;

/// Logs "Warning: <message>" and returns; never throws.
void assertionWarning(const AssertionFail& fail) noexcept;

/// Where assertions log once logging exists. Until something is installed they
/// reach standard error only.
struct AssertionLog {
  void (*write)(const char* text) = nullptr; ///< one record at level 0 on source "Assertion"
  void (*flush)() = nullptr;                 ///< pushes out records queued for other processes
};
void setAssertionLog(const AssertionLog& log) noexcept;

namespace detail {
[[noreturn]] void pointerCheckFailed(const std::type_info& target, const char* file,
                                     int line) noexcept;
}

/// Fatal unless `t` is non-null.
template <class T>
T* checkPointer(T* t, const char* file, int line) noexcept {
  if (!t)
    detail::pointerCheckFailed(typeid(T), file, line);
  return t;
}

/// A run-time cast that must succeed.
template <class T, class U>
T* checkedCast(U* u, const char* file, int line) noexcept {
  return checkPointer(dynamic_cast<T*>(u), file, line);
}

} // namespace plat

#define XN_ASSERT(expr)                                                                            \
  ((expr) ? static_cast<void>(0)                                                                  \
          : ::plat::assertionFailed(::plat::AssertionFail(#expr, __FILE__, __LINE__)))

/// For argument checks a caller may catch as plat::Exception.
#define XN_ASSERT_THROW(expr)                                                                      \
  ((expr) ? static_cast<void>(0) : throw ::plat::AssertionFail(#expr, __FILE__, __LINE__))

#define XN_ASSERT_WARN(expr)                                                                       \
  ((expr) ? static_cast<void>(0)                                                                  \
          : ::plat::assertionWarning(::plat::AssertionFail(#expr, __FILE__, __LINE__)))

#define XN_CHECK_PTR(ptr) ::plat::checkPointer((ptr), __FILE__, __LINE__)
#define XN_CHECKED_CAST(Type, ptr) ::plat::checkedCast<Type>((ptr), __FILE__, __LINE__)
