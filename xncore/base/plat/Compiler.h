// Compiler annotations shared by the whole code base.
#pragma once

// Lets the compiler check printf-style arguments against their format.
// formatIndex and firstArg count from 1; member functions count `this` as 1.
#if defined(__GNUC__) || defined(__clang__)
#define XN_PRINTF_FORMAT(formatIndex, firstArg)                                                    \
  __attribute__((format(printf, formatIndex, firstArg)))
#else
#define XN_PRINTF_FORMAT(formatIndex, firstArg)
#endif
