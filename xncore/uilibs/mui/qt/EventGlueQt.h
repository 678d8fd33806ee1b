// Where Qt calls into the toolkit (a click, a key, a close), exceptions must
// not travel through Qt's own frames. A plat::Exception is an administrator's
// mistake or a refused operation: it is logged, shown in a message box over
// the active window, and the program goes on, since nothing was changed. Any
// other exception is kept and rethrown by the message queue once Qt has
// returned, so that it ends the program through the entry's handler.
#pragma once

#include <exception>
#include <utility>

namespace mui {

namespace detail {
void reportFromQt(const std::exception_ptr& failure) noexcept;
}

/// Runs `action` on behalf of Qt, handling what it throws as described above.
template <class Action>
void callFromQt(Action&& action) noexcept {
  try {
    std::forward<Action>(action)();
  } catch (...) {
    detail::reportFromQt(std::current_exception());
  }
}

/// Rethrows, once, what a call from Qt could not handle; called outside Qt's frames.
void rethrowFromQt();

} // namespace mui
