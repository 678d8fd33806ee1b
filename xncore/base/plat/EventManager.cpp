#include "plat/EventManager.h"

#include "plat/Exception.h"
#include "plat/MessageQueue.h"
#include "plat/ThreadSlot.h"
#include "plat/TimerManager.h"

#include <algorithm>

namespace plat {

namespace {

using CurrentManager = ThreadSlot<EventManager>;

} // namespace

EventManager::EventManager() : previous_(CurrentManager::get()) {
  CurrentManager::set(this);
}

EventManager::~EventManager() {
  while (!handlers_.empty()) {
    EventHandler* handler = handlers_.back();
    events_.pop_back();
    handlers_.pop_back();
    handler->eventManagerDestroyed();
  }
  CurrentManager::set(previous_);
}

EventManager* EventManager::current() noexcept {
  return CurrentManager::get();
}

EventManager& EventManager::get() {
  EventManager* manager = CurrentManager::get();
  if (!manager)
    throw Exception("No EventManager");
  return *manager;
}

void EventManager::setHandler(NativeHandle handle, EventHandler* handler) {
  auto known = std::find(events_.begin(), events_.end(), handle);
  std::size_t index = static_cast<std::size_t>(known - events_.begin());
  if (handler && known != events_.end()) {
    handlers_[index] = handler;
  } else if (handler) {
    if (events_.size() >= maxEvents)
      throw Exception("Maximum number of events exceeded");
    events_.push_back(handle);
    handlers_.push_back(handler);
  } else if (known != events_.end()) {
    events_.erase(known);
    handlers_.erase(handlers_.begin() + static_cast<std::ptrdiff_t>(index));
  } else {
    return;
  }
  if (listener_)
    listener_->handlerChanged(handle, handler != nullptr);
}

// A wait on the table; the failure names the wait that was meant.
int EventManager::poll(int timeoutMs, MessageQueue* queue) {
  int error = 0;
  int result = queue ? queue->block(events_.data(), events_.size(), timeoutMs, &error)
                     : waitForHandles(events_.data(), events_.size(), timeoutMs, &error);
  if (result == waitFailed)
    throw SystemException(
        queue ? "MsgWaitForMultipleObjects failed" : "WaitForMultipleObjects failed", error);
  return result;
}

bool EventManager::wait(MessageQueue* queue, int timeoutMs, bool* timedOut) {
  bool gotMessage = queue && queue->take();
  int result = poll(0, nullptr);
  int limit = timeoutMs;
  if (TimerManager* timers = TimerManager::current()) {
    std::int32_t next = timers->nextTimeout();
    if (next >= 0 && (timeoutMs < 0 || next < timeoutMs))
      limit = next;
  }
  if (!gotMessage && result == waitTimedOut && limit != 0)
    result = poll(limit, queue);
  if (timedOut)
    // A wake for a timer's sake is no time-out of the caller's.
    *timedOut = result == waitTimedOut && limit == timeoutMs;
  if (result >= 0 && static_cast<std::size_t>(result) < events_.size())
    fire(static_cast<std::size_t>(result));
  return gotMessage;
}

void EventManager::fire(std::size_t index) {
  // Moving the served handle to the end is what makes the service fair: the
  // wait reports the lowest signalled index.
  auto at = static_cast<std::ptrdiff_t>(index);
  std::rotate(events_.begin() + at, events_.begin() + at + 1, events_.end());
  std::rotate(handlers_.begin() + at, handlers_.begin() + at + 1, handlers_.end());
  handlers_.back()->handleEvent(events_.back());
}

bool EventManager::fireEvent(NativeHandle handle) {
  auto known = std::find(events_.begin(), events_.end(), handle);
  if (known == events_.end())
    return false;
  fire(static_cast<std::size_t>(known - events_.begin()));
  return true;
}

void EventManager::processAllEvents() {
  for (std::size_t pass = 0; pass < events_.size(); ++pass) {
    int result = poll(0, nullptr);
    if (TimerManager* timers = TimerManager::current())
      timers->nextTimeout();
    if (result < 0 || static_cast<std::size_t>(result) >= events_.size())
      return;
    fire(static_cast<std::size_t>(result));
  }
}

std::size_t EventManager::getEvents(NativeHandle* handles) const {
  std::copy(events_.begin(), events_.end(), handles);
  return events_.size();
}

} // namespace plat
