// How a fuzz target reports a broken invariant: a trap, which libFuzzer
// records as a crash together with the input that caused it.
#pragma once

namespace xnfuzz {

inline void check(bool condition) {
  if (!condition)
    __builtin_trap();
}

} // namespace xnfuzz
