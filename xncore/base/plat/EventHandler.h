// plat::EventHandler: who serves a handle registered with an EventManager.
#pragma once

#include "plat/Handle.h"

namespace plat {

class EventHandler {
public:
  /// `handle` is signalled (or was fired by hand). The handler may change the
  /// manager's table freely.
  virtual void handleEvent(NativeHandle handle) = 0;
  /// The manager is going away with this handler still registered.
  virtual void eventManagerDestroyed() {}
  virtual ~EventHandler() = default;
};

} // namespace plat
