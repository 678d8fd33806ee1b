#include "plat/Assertion.h"

#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <vector>

#include "plat/DString.h"
#include "plat/StackTrace.h"

namespace plat {

namespace {

AssertionLog assertionLog;

// Set by the first fatal assertion and never cleared; a plain byte, since two
// simultaneous first assertions may both report and that is harmless.
volatile bool anAssertionFailed = false;

void logRecord(const char* text) noexcept {
  if (assertionLog.write)
    assertionLog.write(text);
}

} // namespace

AssertionFail::AssertionFail(const char* expression, const char* file, int line) noexcept
    : expression_(expression), file_(file), line_(line) {
  appendMessageFormat("Assertion '%s' failed at %s:%d", expression, file, line);
  setType("AssertionFail");
}

AssertionFail& AssertionFail::addDetail(const char* format, ...) noexcept {
  appendMessage(": ");
  va_list args;
  va_start(args, format);
  appendMessageFormatV(format, args);
  va_end(args);
  return *this;
}

void setAssertionLog(const AssertionLog& log) noexcept { assertionLog = log; }

void assertionFailed(const AssertionFail& fail) noexcept {
  DString report;
  report.append(fail.what());
  if (!anAssertionFailed) {
    anAssertionFailed = true;
    std::fprintf(stderr, "%s\n", fail.what());
    std::fflush(stderr);
    logRecord(fail.what());
    std::vector<String> frames = captureStackTrace();
    for (std::size_t i = 0; i < frames.size(); ++i) {
      if (assertionLog.write) {
        DString line;
        line.appendFormat("stacktrace: %s", frames[i].get());
        logRecord(line.get());
      }
      if (i > 0) {
        report.append("\n");
        report.append(frames[i].get());
      }
    }
    if (assertionLog.flush)
      assertionLog.flush();
  }
  reportAssertion(report.get(), fail.file(), fail.line());
  std::_Exit(1);
}

void assertionWarning(const AssertionFail& fail) noexcept {
  try {
    DString line;
    line.appendFormat("Warning: %s", fail.what());
    if (assertionLog.write)
      assertionLog.write(line.get());
    else
      std::fprintf(stderr, "%s\n", line.get());
  } catch (...) {
    // A warning must never turn into a failure of its own.
  }
}

namespace detail {

void pointerCheckFailed(const std::type_info& target, const char* file, int line) noexcept {
  int status = 0;
  char* demangled = abi::__cxa_demangle(target.name(), nullptr, nullptr, &status);
  AssertionFail fail("t", file, line);
  fail.addDetail("%s is null", status == 0 && demangled ? demangled : target.name());
  std::free(demangled);
  assertionFailed(fail);
}

} // namespace detail

} // namespace plat
