#include "plat/Timer.h"

#include "plat/Clock.h"
#include "plat/TimerManager.h"

namespace plat {

Timer::~Timer() {
  stop();
}

void Timer::start(std::int32_t ms) {
  stop();
  TimerManager::get().start(this, ms);
}

void Timer::stop() {
  if (manager_)
    manager_->stop(this);
}

Ticks Timer::remaining() const {
  return expiry_ - (manager_ ? manager_->now() : monotonicTime());
}

} // namespace plat
