// Waitable objects of the platform and the one wait on them. A handle is an
// opaque pointer-sized value; on Linux it is a file descriptor, "signalled"
// while it is readable.
#pragma once

#include "plat/NonCopyable.h"

#include <cstddef>
#include <cstdint>

namespace plat {

using NativeHandle = std::intptr_t;
inline constexpr NativeHandle noHandle = -1;

/// Owns one native handle and closes it when destroyed.
class Handle : NonCopyable {
public:
  explicit Handle(NativeHandle handle = noHandle) noexcept : handle_(handle) {}
  ~Handle();

  NativeHandle get() const noexcept { return handle_; }

private:
  NativeHandle handle_;
};

/// What waitForHandles reports besides the index of a signalled handle.
inline constexpr int waitTimedOut = -1;
inline constexpr int waitFailed = -2;

/// Waits until one of `handles` is signalled or `timeoutMs` passes (negative:
/// no limit; 0: only a look). Gives the lowest signalled index, waitTimedOut,
/// `count` when a signal of the process ended the wait early, or waitFailed
/// with the system's error code in `error`. Not noexcept: a blocking wait is
/// where a terminated thread ends, unwinding its stack.
int waitForHandles(const NativeHandle* handles, std::size_t count, int timeoutMs, int* error);

} // namespace plat
