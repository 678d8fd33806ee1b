// plat::Condition: a condition variable on the caller's mutex. Each waiting
// thread sleeps on its own event; signal wakes the most recent waiters first.
#pragma once

#include "plat/NonCopyable.h"

#include <mutex>

namespace plat {

class Thread;

class Condition : NonCopyable {
public:
  explicit Condition(std::recursive_mutex& mutex) noexcept : mutex_(mutex) {}

  /// The caller holds the mutex, which is released while it sleeps and held
  /// again on return, also when the wait raises. False on time-out
  /// (`timeoutMs` negative: no limit).
  bool wait(int timeoutMs = -1);
  /// Wakes up to `count` waiters (negative: all), newest first.
  void signal(int count = 1);

private:
  void remove(Thread* waiter);

  std::recursive_mutex& mutex_;
  std::mutex lock_;
  Thread* waiters_ = nullptr;
};

} // namespace plat
