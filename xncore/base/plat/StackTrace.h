// Capturing the current call stack for the assertion report. A platform
// without the service returns no frames.
#pragma once

#include <vector>

#include "plat/String.h"

namespace plat {

/// One text per frame, the innermost (the caller of this function) first.
std::vector<String> captureStackTrace();

/// The platform's last word on a failed assertion, before the process ends.
void reportAssertion(const char* text, const char* file, int line) noexcept;

} // namespace plat
