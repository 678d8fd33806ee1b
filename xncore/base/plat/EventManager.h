// plat::EventManager: the thread's table of waitable handles and who serves
// them, and the wait that the thread's loop is built on. One turn of wait
// looks at the native message queue, polls the handles, asks the thread's
// timers how long it may sleep, blocks only when nothing is pending, and
// serves at most one handle. The served handle moves to the end of the table,
// so a handle that is always signalled cannot starve the others.
#pragma once

#include "plat/EventHandler.h"
#include "plat/NonCopyable.h"

#include <cstddef>
#include <vector>

namespace plat {

class MessageQueue;

class EventManager : NonCopyable {
public:
  /// Told about each change of the table.
  class Listener {
  public:
    virtual ~Listener() = default;
    virtual void handlerChanged(NativeHandle handle, bool added) = 0;
  };

  /// The table holds at most this many handles.
  static constexpr std::size_t maxEvents = 63;

  /// Becomes the thread's current manager until destroyed.
  EventManager();
  virtual ~EventManager();

  /// The thread's manager, or null.
  static EventManager* current() noexcept;
  /// The thread's manager; raises Exception "No EventManager" without one.
  static EventManager& get();

  /// Registers, replaces (keeping the place) or, with a null handler, removes.
  /// Raises Exception "Maximum number of events exceeded" for a new handle
  /// when the table is full.
  void setHandler(NativeHandle handle, EventHandler* handler);

  /// One turn: see the class comment. `queue` null leaves the message queue
  /// alone; `timeoutMs` negative waits for ever. True when a message was
  /// taken, to be dispatched by the caller.
  bool wait(MessageQueue* queue, int timeoutMs, bool* timedOut = nullptr);

  /// Runs the handler of `handle` as if it had been signalled; false when
  /// `handle` is not registered.
  bool fireEvent(NativeHandle handle);

  /// Serves each signalled handle about once, without blocking.
  void processAllEvents();

  /// Copies the table into `handles` (room for maxEvents) and gives the count.
  std::size_t getEvents(NativeHandle* handles) const;

  void setListener(Listener* listener) noexcept { listener_ = listener; }

private:
  int poll(int timeoutMs, MessageQueue* queue);
  void fire(std::size_t index);

  std::vector<NativeHandle> events_;
  std::vector<EventHandler*> handlers_;
  EventManager* previous_;
  Listener* listener_ = nullptr;
};

} // namespace plat
