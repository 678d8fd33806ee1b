#include "plat/TimerManager.h"

#include "plat/Assertion.h"
#include "plat/Clock.h"
#include "plat/LogSrc.h"
#include "plat/ThreadSlot.h"
#include "plat/Timer.h"

#include <algorithm>
#include <limits>

namespace plat {

namespace {

LogSrc timerLog("Timer");

using CurrentManager = ThreadSlot<TimerManager>;

// How far the earliest timer may be overdue before the clock is taken to have jumped.
constexpr Ticks jumpLimit = 240 * ticksPerSecond;

std::int32_t msUntil(Ticks expiry, Ticks now) noexcept {
  if (expiry <= now)
    return 0;
  Ticks dividend = expiry - now + (ticksPerMillisecond - 1);
  constexpr Ticks maxMs = std::numeric_limits<std::int32_t>::max();
  if (dividend >= maxMs * ticksPerMillisecond)
    return static_cast<std::int32_t>(maxMs);
  return static_cast<std::int32_t>(dividend / ticksPerMillisecond);
}

Ticks interval(const Timer* timer) noexcept {
  return Ticks{timer->intervalMs()} * ticksPerMillisecond;
}

} // namespace

TimerManager::TimerManager(bool nested, Clock clock)
    : previous_(CurrentManager::get()), clock_(clock ? clock : &monotonicTime) {
  TimerManager* thrInst = previous_;
  XN_ASSERT(nested || !thrInst);
  CurrentManager::set(this);
}

TimerManager::~TimerManager() {
  while (head_)
    stop(head_);
  while (!due_.empty())
    stop(due_.front());
  TimerManager* thrInst = CurrentManager::get();
  XN_ASSERT(thrInst == this);
  CurrentManager::set(previous_);
}

TimerManager& TimerManager::get() noexcept {
  TimerManager* thrInst = CurrentManager::get();
  XN_ASSERT(thrInst);
  return *thrInst;
}

TimerManager* TimerManager::current() noexcept {
  return CurrentManager::get();
}

Ticks TimerManager::now() {
  return clock_(-1, nullptr);
}

bool TimerManager::checkTime(Ticks& now) {
  Ticks limit = head_ ? head_->expiry_ + jumpLimit : -1;
  bool jumped = false;
  now = clock_(limit, &jumped);
  if (!jumped)
    return true;
  timerLog.info(now < limit ? "Time has jumped forwards - restarting timers"
                            : "Time has moved backwards - restarting timers");
  Timer* old = tail_;
  head_ = tail_ = nullptr;
  while (old) {
    Timer* previous = old->prev_;
    old->next_ = old->prev_ = nullptr;
    old->expiry_ = now + interval(old);
    insertSorted(old);
    old = previous;
  }
  for (Timer* timer : due_)
    timer->expiry_ = now;
  return false;
}

void TimerManager::insertSorted(Timer* timer) noexcept {
  Timer* after = tail_;
  // Equal expiries keep the order of insertion.
  while (after && after->expiry_ > timer->expiry_)
    after = after->prev_;
  timer->prev_ = after;
  timer->next_ = after ? after->next_ : head_;
  (timer->next_ ? timer->next_->prev_ : tail_) = timer;
  (after ? after->next_ : head_) = timer;
}

void TimerManager::unlink(Timer* timer) noexcept {
  (timer->prev_ ? timer->prev_->next_ : head_) = timer->next_;
  (timer->next_ ? timer->next_->prev_ : tail_) = timer->prev_;
  timer->next_ = timer->prev_ = nullptr;
}

void TimerManager::notifyListener() {
  if (listener_)
    listener_->nextTimeoutChanged(nextTimeout());
}

void TimerManager::start(Timer* timer, std::int32_t ms) {
  timer->stop();
  Ticks now;
  checkTime(now);
  timer->intervalMs_ = ms;
  timer->expiry_ = now + interval(timer);
  timer->manager_ = this;
  insertSorted(timer);
  if (head_ == timer)
    notifyListener();
}

void TimerManager::stop(Timer* timer) {
  Ticks now;
  checkTime(now);
  bool wasHead = head_ == timer;
  if (timer->prev_ || wasHead) {
    unlink(timer);
  } else {
    auto queued = std::find(due_.begin(), due_.end(), timer);
    if (queued != due_.end())
      due_.erase(queued);
  }
  timer->manager_ = nullptr;
  if (wasHead)
    notifyListener();
}

std::int32_t TimerManager::nextTimeout(Ticks* now) {
  Ticks reading;
  checkTime(reading);
  if (now)
    *now = reading;
  return head_ ? msUntil(head_->expiry_, reading) : -1;
}

int TimerManager::process() {
  if (!head_)
    return -1;
  Ticks now;
  checkTime(now);
  if (std::int32_t ms = msUntil(head_->expiry_, now); ms != 0)
    return ms;
  // Timers left here by a callback that raised are dropped, still marked active.
  due_.clear();
  while (head_ && head_->expiry_ <= now) {
    Timer* timer = head_;
    unlink(timer);
    due_.push_back(timer);
  }
  while (!due_.empty()) {
    Timer* timer = due_.front();
    due_.pop_front();
    timer->manager_ = nullptr;
    // A callback that restarted its own timer has set the interval it wants.
    if (!timer->callback_->timedOut(timer) || timer->manager_)
      continue;
    if (checkTime(now)) {
      // Missed periods are dropped, not caught up.
      timer->expiry_ += interval(timer);
      if (timer->expiry_ <= now)
        timer->expiry_ = now + interval(timer);
    } else {
      timer->expiry_ = now + interval(timer);
    }
    timer->manager_ = this;
    insertSorted(timer);
  }
  notifyListener();
  return 0;
}

} // namespace plat
