// Comparison of names without regard to case. Parameter names, log source
// names and the keys of the maps that hold them all use this one rule: ASCII
// letters fold, every other byte compares as it stands.
#pragma once

#include "plat/String.h"

namespace plat {

/// Negative, zero or positive like strcmp; null sorts before everything.
int compareNoCase(const char* a, const char* b) noexcept;

inline bool equalsNoCase(const char* a, const char* b) noexcept {
  return compareNoCase(a, b) == 0;
}

/// Whether `text` matches `pattern`, in which "*" stands for any run of
/// characters, including none, and every other character for itself. Null
/// never matches. Without `caseSensitive`, ASCII letters fold as above.
bool matchPattern(const char* pattern, const char* text, bool caseSensitive) noexcept;

/// The ordering of maps keyed by names.
struct NoCaseLess {
  bool operator()(const String& a, const String& b) const noexcept {
    return compareNoCase(a.get(), b.get()) < 0;
  }
};

} // namespace plat
