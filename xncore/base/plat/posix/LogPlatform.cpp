#include "plat/LogPlatform.h"

#include <limits.h>
#include <stdio.h>
#include <syslog.h>
#include <unistd.h>

#include <cstring>

namespace plat {

namespace {
constexpr std::size_t computerNameLength = 16;
}

std::int64_t currentProcessId() noexcept {
  return getpid();
}

String computerName() {
  char host[HOST_NAME_MAX + 1] = {};
  if (gethostname(host, sizeof host - 1) != 0)
    return String("");
  // The short name, as other systems limit it.
  host[std::strcspn(host, ".")] = '\0';
  host[computerNameLength] = '\0';
  return String(host);
}

bool streamIsTerminal(std::FILE* stream) noexcept {
  return isatty(fileno(stream)) == 1;
}

void redirectStderrTo(std::FILE* stream) noexcept {
  std::fflush(stderr);
  dup2(fileno(stream), STDERR_FILENO);
  setvbuf(stderr, nullptr, _IONBF, 0);
}

void writeDebugOutput(int severity, const char* line) noexcept {
  // The severities are syslog's own numbers, which the journal keeps beside the text.
  syslog(LOG_USER | severity, "%s", line);
}

} // namespace plat
