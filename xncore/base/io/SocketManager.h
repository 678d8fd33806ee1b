// io::SocketManager: the thread's loop machinery in one object: its event
// manager, its timers and its descriptor readiness. Every selected descriptor
// signals one handle of the event manager; serving that handle marks the
// handlers, and wait() ends each turn with the dispatch.
#pragma once

#include "io/FdManager.h"
#include "plat/EventManager.h"

#include <memory>

namespace plat {
class MessageQueue;
}

namespace io {

class SocketManager : public FdManager, plat::EventHandler {
public:
  SocketManager();
  ~SocketManager() override;

  /// One turn of the thread's loop: the event wait, then dispatch(). True
  /// when a message was taken from `queue`, to be dispatched by the caller.
  bool wait(plat::MessageQueue* queue, int timeoutMs, bool* timedOut = nullptr);

  plat::EventManager& events() noexcept { return events_; }

  using FdManager::select;

protected:
  void select(int fd, bool read, bool write, bool accept, bool addressChange) override;
  void deselect(int fd) override;

private:
  class Readiness;

  void handleEvent(plat::NativeHandle handle) override;

  plat::EventManager events_;
  std::unique_ptr<Readiness> readiness_;
};

/// The manager of the process's loop, made on first use on the thread that
/// runs the loop and kept until the process ends.
SocketManager& processSocketManager();

} // namespace io
