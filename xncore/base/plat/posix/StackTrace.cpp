#include "plat/StackTrace.h"

#include <execinfo.h>
#include <stdio.h>
#include <stdlib.h>

namespace plat {

std::vector<String> captureStackTrace() {
  constexpr int maxFrames = 64;
  void* frames[maxFrames];
  int count = backtrace(frames, maxFrames);
  std::vector<String> result;
  char** symbols = backtrace_symbols(frames, count);
  if (!symbols)
    return result;
  // Frame 0 is this function itself.
  for (int i = 1; i < count; ++i)
    result.emplace_back(symbols[i]);
  free(symbols);
  return result;
}

void reportAssertion(const char* text, const char* file, int line) noexcept {
  fprintf(stderr, "%s:%d: %s\n", file, line, text);
  fflush(stderr);
}

} // namespace plat
