// plat::Timer: a one-shot or repeating timer of the thread that starts it.
// Its Callback says, each time it fires, whether it runs again. Timers are
// served by the thread's TimerManager from the thread's loop, never from
// another thread.
#pragma once

#include "plat/NonCopyable.h"
#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

class TimerManager;

class Timer : NonCopyable {
public:
  class Callback {
  public:
    virtual ~Callback() = default;
    /// True runs the timer again after its interval.
    virtual bool timedOut(Timer* timer) = 0;
  };

  explicit Timer(Callback* callback) noexcept : callback_(callback) {}
  /// Stops the timer.
  ~Timer();

  /// (Re)starts the timer on the calling thread's TimerManager, so a timer
  /// moves to the thread that restarts it.
  void start(std::int32_t ms);
  /// Does nothing when the timer is not active.
  void stop();

  bool isActive() const noexcept { return manager_ != nullptr; }
  std::int32_t intervalMs() const noexcept { return intervalMs_; }
  /// Ticks until the expiry; negative when it has passed.
  Ticks remaining() const;

private:
  friend class TimerManager;

  Timer* next_ = nullptr;
  Timer* prev_ = nullptr;
  Ticks expiry_ = 0;
  std::int32_t intervalMs_ = 0;
  Callback* callback_;
  // Null while inactive; else the manager whose list or firing holds the timer.
  TimerManager* manager_ = nullptr;
};

} // namespace plat
