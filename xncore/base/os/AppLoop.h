// os::AppLoop: the loop of the thread that runs the user interface, one per
// process. Each turn takes at most one native message without blocking, polls
// the handles, looks at the timers, blocks only when nothing is pending,
// serves at most one handle, fires the due timers, delivers descriptor
// readiness and last dispatches the message it took. How a turn is run is the
// business of its Impl; the native message side comes from the toolkit
// binding through setMessageQueue().
#pragma once

#include "plat/NonCopyable.h"

#include <cstdint>
#include <memory>

namespace plat {
class MessageQueue;
}

namespace io {
class SocketManager;
}

namespace os {

class AppLoop : plat::NonCopyable {
public:
  class Impl {
  public:
    /// Runs turns until a quit is requested.
    virtual void run() = 0;
    /// Wakes a blocked turn; nothing to do where quit comes from the loop's own thread.
    virtual void wake() {}
    virtual ~Impl() = default;
  };

  /// Without `impl`, an AppLoopImpl on the process's manager and the installed message queue.
  explicit AppLoop(std::unique_ptr<Impl> impl = nullptr);
  virtual ~AppLoop();

  static AppLoop& inst() noexcept;
  /// The loop, or null before it is made and after it is gone.
  static AppLoop* instOrNull() noexcept;

  /// Runs the loop until quit() and gives its code. Not nested: modal loops
  /// run turns of their own.
  int run();
  /// Ends run() with `code`; before run(), run() returns at once.
  static void quit(int code) noexcept;
  /// Runs turns of the loop, inside run() or outside it, until `running` goes
  /// false or a quit is asked for: the run of a modal window. A quit that ends
  /// it is taken by it, as the platform's modal loops take the quit message,
  /// so the loop around it goes on. True when a quit ended it.
  bool runNested(const bool& running);

  bool stopRequested() const noexcept { return stopRequested_; }
  bool running() const noexcept { return isRunning; }
  void setTranslateMessages(bool translate) noexcept;

private:
  std::unique_ptr<Impl> impl_;
  std::int32_t exitCode_ = 0;
  bool stopRequested_ = false;
  bool isRunning = false;
};

class AppLoopImpl : public AppLoop::Impl {
public:
  /// `queue` null runs the loop without native messages.
  AppLoopImpl(io::SocketManager& manager, plat::MessageQueue* queue) noexcept
      : manager_(&manager), queue_(queue) {}

  void run() override;
  /// One turn of the loop. Modal loops run these too.
  void turn();
  /// A message that returns true here is not dispatched.
  virtual bool preTranslate(plat::MessageQueue& queue);

  void setTranslateMessages(bool translate) noexcept { translateMessages_ = translate; }

private:
  io::SocketManager* manager_;
  plat::MessageQueue* queue_;
  bool translateMessages_ = true;
};

/// Installs the native message queue of the loop's thread (null: none). The
/// toolkit binding does this before the loop is made.
void setMessageQueue(plat::MessageQueue* queue) noexcept;
plat::MessageQueue* messageQueue() noexcept;

} // namespace os
