// plat::Event: a manual-reset event, a waitable flag that stays signalled until
// it is reset. Setting it is safe from any thread; it is how work is handed to
// a thread that waits in its loop.
#pragma once

#include "plat/Handle.h"

namespace plat {

class Event : NonCopyable {
public:
  /// Unsignalled. Failure raises SystemException "CreateEvent".
  Event();

  void set() noexcept;
  void reset() noexcept;
  /// True once signalled, false when `timeoutMs` passed first (negative: no limit).
  bool wait(int timeoutMs);

  NativeHandle handle() const noexcept { return handle_.get(); }

private:
  Handle handle_;
};

} // namespace plat
