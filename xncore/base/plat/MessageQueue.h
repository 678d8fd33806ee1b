// plat::MessageQueue: the thread's native message queue as the event wait sees
// it. A toolkit binding supplies it: the headless binding keeps messages in
// memory, the Qt binding hands the wait over to Qt's own event loop.
#pragma once

#include "plat/Handle.h"

#include <cstddef>

namespace plat {

class MessageQueue {
public:
  virtual ~MessageQueue() = default;

  /// Takes one pending message without blocking, keeping it for dispatch();
  /// false when nothing is pending. A queue that cannot show a message
  /// without handling it handles what is pending here.
  virtual bool take() = 0;

  /// Blocks until a message arrives, one of `handles` is signalled, or
  /// `timeoutMs` passes (never negative here: no limit). Gives what
  /// waitForHandles gives, with `count` for "a message arrived".
  virtual int block(const NativeHandle* handles, std::size_t count, int timeoutMs, int* error) = 0;

  /// Hands the message that take() took to its receiver. `translate` asks for
  /// keys to be turned into characters where the toolkit does that itself.
  virtual void dispatch(bool translate) = 0;
};

} // namespace plat
