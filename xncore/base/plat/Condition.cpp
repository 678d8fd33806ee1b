#include "plat/Condition.h"

#include "plat/Thread.h"

namespace plat {

namespace {

// Takes the caller's mutex again on the way out, however the wait ends.
class Relock {
public:
  explicit Relock(std::recursive_mutex& mutex) : mutex_(mutex) { mutex_.unlock(); }
  ~Relock() { mutex_.lock(); }

private:
  std::recursive_mutex& mutex_;
};

} // namespace

bool Condition::wait(int timeoutMs) {
  Thread* self = Thread::self();
  self->sleepEvent_.reset();
  {
    std::lock_guard lock(lock_);
    self->nextWaiter_ = waiters_;
    waiters_ = self;
  }
  bool woken = false;
  try {
    Relock relock(mutex_);
    woken = self->sleepEvent_.wait(timeoutMs);
  } catch (...) {
    remove(self);
    throw;
  }
  if (!woken)
    remove(self);
  return woken;
}

// A signal may have taken the waiter off the chain already.
void Condition::remove(Thread* waiter) {
  std::lock_guard lock(lock_);
  for (Thread** link = &waiters_; *link; link = &(*link)->nextWaiter_) {
    if (*link == waiter) {
      *link = waiter->nextWaiter_;
      break;
    }
  }
}

void Condition::signal(int count) {
  std::lock_guard lock(lock_);
  for (; waiters_ && count != 0; --count) {
    waiters_->sleepEvent_.set();
    waiters_ = waiters_->nextWaiter_;
  }
}

} // namespace plat
