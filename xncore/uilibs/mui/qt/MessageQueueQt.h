// mui::MessageQueueQt: the native message queue of the Qt binding. Qt cannot
// show a pending event without handling it, so taking a message lets Qt
// handle whatever is pending, and dispatching has nothing left to do. To
// block, the loop hands the wait to Qt: a socket notifier for each handle and
// a precise single-shot timer for the time limit wake it as well as any Qt
// event does. Nested modal runs go through the same turn.
#pragma once

#include "plat/MessageQueue.h"

#include <QSocketNotifier>
#include <QTimer>
#include <map>
#include <memory>

namespace mui {

class MessageQueueQt : public plat::MessageQueue {
public:
  /// Needs the thread's QCoreApplication (or a derived one).
  MessageQueueQt();
  ~MessageQueueQt() override;

  bool take() override;
  int block(const plat::NativeHandle* handles, std::size_t count, int timeoutMs,
            int* error) override;
  void dispatch(bool translate) override;

private:
  void watch(const plat::NativeHandle* handles, std::size_t count);

  std::map<plat::NativeHandle, std::unique_ptr<QSocketNotifier>> notifiers_;
  QTimer limit_;
  bool limitReached_ = false;
};

} // namespace mui
