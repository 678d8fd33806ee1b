// io::FdManager: the thread's descriptor readiness layer under the loop. A
// platform manager watches the selected descriptors and marks their handlers;
// dispatch(), called after each event wait, fires the thread's due timers and
// then tells the marked handlers, address changes first, then readable, then
// writable. A handler may add or remove handlers, itself included, from
// inside a notification.
#pragma once

#include "io/FdHandler.h"
#include "plat/NonCopyable.h"
#include "plat/TimerManager.h"

#include <vector>

namespace io {

class FdManager : plat::NonCopyable {
public:
  /// Becomes the thread's current manager, with timers of its own.
  FdManager();
  /// Tells every handler still added, and gives the thread back its former manager.
  virtual ~FdManager();

  /// The thread's manager, or null.
  static FdManager* current() noexcept;

  void add(FdHandler* handler);
  /// Also takes back any mark, so that a handler removed during dispatch() is not called.
  void remove(FdHandler* handler);
  /// What `handler` wants to hear about; marks for what it no longer wants are dropped.
  void select(FdHandler* handler, bool read, bool write, bool accept, bool addressChange);

  void dispatch();

  plat::TimerManager& timers() noexcept { return timers_; }

protected:
  /// The platform's half of select: watch `fd` for what is asked, or no more.
  virtual void select(int fd, bool read, bool write, bool accept, bool addressChange) = 0;
  virtual void deselect(int fd) = 0;

  void markReadable(FdHandler* handler);
  void markWritable(FdHandler* handler);
  void markAddressChanged(FdHandler* handler);
  /// The added handler of `fd`, or null.
  FdHandler* handlerOf(int fd) const noexcept;

private:
  using List = std::vector<FdHandler*>;

  static void deliver(List& marked, List& working, void (FdHandler::*notify)());

  List fds_;
  List readable_, writable_, addressChanged_;
  List readableWork_, writableWork_, addressChangedWork_;
  plat::TimerManager timers_;
  FdManager* previous_;
};

} // namespace io
