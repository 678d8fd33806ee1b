// Appending to fixed, NUL-terminated buffers without ever cutting a UTF-8
// character in half. All exception text goes through these, so that building a
// message never allocates and never fails.
#pragma once

#include "plat/Compiler.h"

#include <cstdarg>
#include <cstddef>

namespace plat {

/// Appends at most `maxLen` bytes of `text` (all of it when `maxLen` < 0). Null text is a no-op.
void appendBounded(char* buffer, std::size_t size, const char* text, int maxLen = -1);

void appendBoundedFormat(char* buffer, std::size_t size, const char* format, ...)
    XN_PRINTF_FORMAT(3, 4);
void appendBoundedFormatV(char* buffer, std::size_t size, const char* format, va_list args)
    XN_PRINTF_FORMAT(3, 0);

/// Appends `codePoint` `count` times, fewer when not all whole characters fit.
void appendBoundedChar(char* buffer, std::size_t size, int codePoint, int count);

} // namespace plat
