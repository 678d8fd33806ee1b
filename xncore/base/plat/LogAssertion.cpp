// Failed assertions write to the log source "Assertion", and the fatal path
// pushes out what waits for the log collector before the process ends.
#include "plat/Assertion.h"
#include "plat/LogDestIpc.h"
#include "plat/LogSrc.h"

namespace plat {

namespace {

LogSrc assertionLog("Assertion");

void writeRecord(const char* text) {
  assertionLog.error("%s", text);
}

void flushCollector() {
  LogDestIpc::instance().flush();
}

// Installed once the source above exists, and removed before it goes.
struct AssertionLogHook {
  AssertionLogHook() { setAssertionLog({writeRecord, flushCollector}); }
  ~AssertionLogHook() { setAssertionLog({}); }
} hook;

} // namespace

} // namespace plat
