// mui::MessageQueueHeadless: the native message queue of the headless
// binding, kept in memory. A message is an action, posted and dispatched on
// the loop's thread; blocking waits on the handles alone, since nothing can
// post while the only thread that may is blocked.
#pragma once

#include "plat/MessageQueue.h"

#include <deque>
#include <functional>

namespace mui {

class MessageQueueHeadless : public plat::MessageQueue {
public:
  using Message = std::function<void()>;

  void post(Message message) { pending_.push_back(std::move(message)); }
  std::size_t pending() const noexcept { return pending_.size(); }

  bool take() override;
  int block(const plat::NativeHandle* handles, std::size_t count, int timeoutMs,
            int* error) override;
  void dispatch(bool translate) override;

private:
  std::deque<Message> pending_;
  Message taken_;
};

} // namespace mui
