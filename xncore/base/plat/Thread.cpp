#include "plat/Thread.h"

#include "plat/Assertion.h"
#include "plat/BoundedAppend.h"
#include "plat/LogSrc.h"
#include "plat/ThreadSlot.h"

#include <memory>

namespace plat {

namespace {

LogSrc threadLog("Threading");

using CurrentThread = ThreadSlot<Thread>;

// The Native object of a thread that this class did not start, deleted as
// the thread ends.
thread_local std::unique_ptr<Thread> nativeSelf;

} // namespace

Thread::Thread(const char* name, Runnable* runnable)
    : name_(name), runnable_(runnable), state_(Created) {
  std::unique_lock lock(lock_);
  native_ = createNativeThread(&Thread::entry, this);
  // The new thread reports its id and then waits at the gate.
  gate_.wait(lock, [this] { return id_ != 0; });
  log(LogSrc::levelDebug, "created");
  nameNativeThread(native_, name_.get());
}

Thread::Thread(NativeThread native, std::uint32_t id)
    : name_("Native"), id_(id), native_(native), state_(Native) {
  log(LogSrc::levelDebug, "native");
}

Thread::~Thread() {
  log(LogSrc::levelTrace, "destroy");
  join();
  if (threadLog.passes(LogSrc::levelDebug)) {
    if (id_ == currentThreadId())
      currentThreadTimes(kernelTime_, userTime_);
    char detail[64] = "";
    appendBoundedFormat(detail, sizeof detail, "kernel %lldms, user %lldms",
                        static_cast<long long>(kernelTime_ / ticksPerMillisecond),
                        static_cast<long long>(userTime_ / ticksPerMillisecond));
    log(LogSrc::levelDebug, "destroyed", detail);
  }
  // A Native object that is detached goes at once: its thread must not
  // find it again, nor delete it a second time as it ends.
  if (CurrentThread::get() == this)
    CurrentThread::set(nullptr);
  if (nativeSelf.get() == this)
    static_cast<void>(nativeSelf.release());
}

void Thread::run() {
  if (runnable_)
    runnable_->run(this);
}

Thread* Thread::self() {
  if (Thread* thread = CurrentThread::get())
    return thread;
  nativeSelf.reset(new Thread(currentNativeThread(), currentThreadId()));
  CurrentThread::set(nativeSelf.get());
  return nativeSelf.get();
}

void Thread::start() {
  std::lock_guard lock(lock_);
  if (state_ != Created)
    return;
  state_ = Started;
  gate_.notify_all();
}

void Thread::entry(void* argument) {
  auto* thread = static_cast<Thread*>(argument);
  {
    std::unique_lock lock(thread->lock_);
    thread->id_ = currentThreadId();
    thread->gate_.notify_all();
    thread->gate_.wait(lock, [thread] { return thread->state_ != Created || thread->abandoned_; });
    if (thread->state_ == Created) {
      thread->exited_.set();
      return;
    }
  }
  thread->execute();
}

void Thread::execute() {
  CurrentThread::set(this);
  // Also when the thread is terminated: the unwinding runs this.
  struct Finish {
    Thread* thread;
    ~Finish() { thread->finish(); }
  } finish{this};
  log(LogSrc::levelDebug, "started");
  try {
    run();
    log(LogSrc::levelDebug, "stopped");
  } catch (const Exception& e) {
    char detail[Exception::textSize + 1] = "";
    if (*e.type())
      appendBoundedFormat(detail, sizeof detail, "[%s] ", e.type());
    appendBounded(detail, sizeof detail, e.what());
    log(LogSrc::levelDebug, "failed", detail);
  }
}

void Thread::finish() {
  currentThreadTimes(kernelTime_, userTime_);
  std::unique_lock lock(lock_);
  state_ = Stopped;
  exited_.set();
  if (detached_) {
    lock.unlock();
    delete this;
  }
}

// The native thread of a Created object leaves without running.
void Thread::abandonUnstarted() {
  if (state_ != Created)
    return;
  abandoned_ = true;
  gate_.notify_all();
}

// Called with the lock held once the native thread has signalled its end.
void Thread::reclaim() {
  reclaimNativeThread(native_);
  state_ = Joined;
}

bool Thread::join(int timeoutMs) {
  std::unique_lock lock(lock_);
  abandonUnstarted();
  if (detached_ || state_ == Native)
    return false;
  if (state_ == Joined)
    return true;
  log(LogSrc::levelDebug, "join");
  lock.unlock();
  if (!exited_.wait(timeoutMs)) {
    log(LogSrc::levelDebug, "timeout");
    return false;
  }
  lock.lock();
  // Another thread may have joined in the meantime.
  if (state_ != Joined) {
    reclaim();
    log(LogSrc::levelTrace, "joined");
  }
  return true;
}

bool Thread::terminate(int timeoutMs) {
  if (join(timeoutMs))
    return true;
  std::lock_guard lock(lock_);
  // Only a running thread has a native thread left to end.
  if (state_ == Started) {
    log(LogSrc::levelDebug, "terminate");
    terminateNativeThread(native_);
  }
  return false;
}

void Thread::detach() {
  std::unique_lock lock(lock_);
  XN_ASSERT(!detached_);
  detached_ = true;
  log(LogSrc::levelDebug, "detach");
  if (state_ == Started) {
    detachNativeThread(native_);
    return;
  }
  if (state_ == Created || state_ == Stopped) {
    abandonUnstarted();
    lock.unlock();
    exited_.wait(-1);
    lock.lock();
    reclaim();
  }
  lock.unlock();
  delete this;
}

Thread::State Thread::state() {
  std::lock_guard lock(lock_);
  return state_;
}

void Thread::log(int level, const char* word, const char* detail) {
  threadLog.write(level, "%-9s %s %x%s%s", word, name_.get(), id_, detail ? ": " : "",
                  detail ? detail : "");
}

} // namespace plat
