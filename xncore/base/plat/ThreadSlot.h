// plat::ThreadSlot: one pointer per thread, null on every new thread. The
// per-thread "current" objects (event manager, timer manager, descriptor
// manager, thread) live in slots; each distinct Tag is a slot of its own.
#pragma once

namespace plat {

template <class Tag, class T = Tag>
class ThreadSlot {
public:
  static T* get() noexcept { return value_; }
  static void set(T* value) noexcept { value_ = value; }

private:
  static inline thread_local T* value_ = nullptr;
};

} // namespace plat
