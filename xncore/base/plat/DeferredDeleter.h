// plat::deleteLater: deletes an object from the thread's loop once the
// notification that asked for it has returned. An object that must go away
// from inside its own handler (a dialog closed by its own button) goes this
// way. The deletion is a timer of 0 ms, so it happens in the same turn of the
// loop, before the next message is dispatched.
#pragma once

#include "plat/Timer.h"

namespace plat {

template <class T>
class DeferredDeleter : Timer::Callback, NonCopyable {
public:
  explicit DeferredDeleter(T* object) : object_(object), timer_(this) { timer_.start(0); }
  ~DeferredDeleter() override { delete object_; }

private:
  bool timedOut(Timer*) override {
    delete this;
    return false;
  }

  T* object_;
  Timer timer_; // stopped by its own destructor, after the object is gone
};

/// Does nothing for null.
template <class T>
void deleteLater(T* object) {
  if (object)
    new DeferredDeleter<T>(object);
}

} // namespace plat
