// plat::TimerManager: the thread's timers, in a list sorted by expiry on the
// monotonic clock. The thread's loop asks it how long it may sleep and lets
// it fire what is due. Should the clock jump (the earliest timer is more than
// four minutes overdue), every timer starts its interval again from now
// instead of all firing at once.
#pragma once

#include "plat/NonCopyable.h"
#include "plat/Ticks.h"

#include <cstdint>
#include <deque>

namespace plat {

class Timer;

class TimerManager : NonCopyable {
public:
  /// Told the milliseconds to the next expiry each time they may have changed.
  class Listener {
  public:
    virtual void nextTimeoutChanged(std::int32_t ms) = 0;
    virtual ~Listener() = default;
  };

  /// The clock: ticks now, and in `passed` whether a non-negative `limit` is exceeded.
  using Clock = Ticks (*)(Ticks limit, bool* passed);

  /// Becomes the thread's current manager. Only a `nested` one may stand in
  /// for another; `clock` is there for tests.
  explicit TimerManager(bool nested = false, Clock clock = nullptr);
  /// Stops every timer it holds and gives the thread back its former manager.
  virtual ~TimerManager();

  /// The thread's manager; a fatal assertion without one.
  static TimerManager& get() noexcept;
  /// The thread's manager, or null.
  static TimerManager* current() noexcept;

  void start(Timer* timer, std::int32_t ms);
  void stop(Timer* timer);
  /// Fires every due timer and gives 0; else the milliseconds to the next
  /// expiry, or -1 without timers.
  int process();
  /// Milliseconds to the next expiry, rounded up; 0 when due, -1 without
  /// timers. `now`, when given, receives the clock's reading.
  std::int32_t nextTimeout(Ticks* now = nullptr);
  /// The clock's reading.
  Ticks now();

  void setListener(Listener* listener) noexcept { listener_ = listener; }

private:
  bool checkTime(Ticks& now);
  void insertSorted(Timer* timer) noexcept;
  void unlink(Timer* timer) noexcept;
  void notifyListener();

  TimerManager* previous_;
  Clock clock_;
  Timer* head_ = nullptr;
  Timer* tail_ = nullptr;
  std::deque<Timer*> due_;
  Listener* listener_ = nullptr;
};

} // namespace plat
