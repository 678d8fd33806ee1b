#include "plat/NativeThread.h"

#include "plat/Exception.h"

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstring>

namespace plat {

namespace {

static_assert(sizeof(pthread_t) <= sizeof(NativeThread));

pthread_t toPthread(NativeThread thread) noexcept {
  return static_cast<pthread_t>(thread);
}

struct Start {
  void (*entry)(void*);
  void* argument;
};

void* threadMain(void* start) {
  Start copy = *static_cast<Start*>(start);
  delete static_cast<Start*>(start);
  copy.entry(copy.argument);
  return nullptr;
}

Ticks toTicks(const timeval& time) noexcept {
  return Ticks{time.tv_sec} * ticksPerSecond + Ticks{time.tv_usec} * 10;
}

} // namespace

NativeThread createNativeThread(void (*entry)(void*), void* argument) {
  auto* start = new Start{entry, argument};
  pthread_t thread;
  int error = pthread_create(&thread, nullptr, &threadMain, start);
  if (error != 0) {
    delete start;
    throw SystemException("CreateThread", error);
  }
  return static_cast<NativeThread>(thread);
}

void reclaimNativeThread(NativeThread thread) noexcept {
  pthread_join(toPthread(thread), nullptr);
}

void detachNativeThread(NativeThread thread) noexcept {
  pthread_detach(toPthread(thread));
}

// A thread is cancelled at its next blocking call; the unwinding runs the
// destructors on its stack.
void terminateNativeThread(NativeThread thread) noexcept {
  pthread_cancel(toPthread(thread));
}

void nameNativeThread(NativeThread thread, const char* name) noexcept {
  // The kernel keeps 15 bytes; cut on a character boundary.
  char shortName[16];
  std::size_t length = std::strlen(name);
  if (length > sizeof shortName - 1)
    length = sizeof shortName - 1;
  while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80)
    --length;
  std::memcpy(shortName, name, length);
  shortName[length] = '\0';
  pthread_setname_np(toPthread(thread), shortName);
}

NativeThread currentNativeThread() noexcept {
  return static_cast<NativeThread>(pthread_self());
}

std::uint32_t currentThreadId() noexcept {
  return static_cast<std::uint32_t>(gettid());
}

void currentThreadTimes(Ticks& kernel, Ticks& user) noexcept {
  rusage usage{};
  getrusage(RUSAGE_THREAD, &usage);
  kernel = toTicks(usage.ru_stime);
  user = toTicks(usage.ru_utime);
}

} // namespace plat
