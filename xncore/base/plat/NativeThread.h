// What the platform directory supplies to plat::Thread: native threads and
// what can be read about them.
#pragma once

#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

/// A native thread, as an opaque value.
using NativeThread = std::uintptr_t;

/// Starts `entry(argument)` on a new thread with the default stack. Failure
/// raises SystemException "CreateThread".
NativeThread createNativeThread(void (*entry)(void*), void* argument);
/// Waits for a thread that has ended, or is about to, and frees it.
void reclaimNativeThread(NativeThread thread) noexcept;
/// Lets the thread free itself when it ends.
void detachNativeThread(NativeThread thread) noexcept;
/// Ends the thread where it stands, as far as the platform allows.
void terminateNativeThread(NativeThread thread) noexcept;
/// Names the thread for debuggers and system tools, shortened as the platform requires.
void nameNativeThread(NativeThread thread, const char* name) noexcept;

NativeThread currentNativeThread() noexcept;
std::uint32_t currentThreadId() noexcept;
/// The processor time the calling thread has used in the kernel and in user mode.
void currentThreadTimes(Ticks& kernel, Ticks& user) noexcept;

} // namespace plat
