// plat::Kicker: brings work to the thread that owns it. Any thread may kick;
// the owner's loop then calls its Kickee, once for any number of kicks that
// came before the call.
#pragma once

#include "plat/Event.h"
#include "plat/EventHandler.h"

namespace plat {

class Kicker;

class Kickee {
public:
  virtual void kicked(Kicker* kicker) = 0;
  virtual ~Kickee() = default;
};

class Kicker : NonCopyable, EventHandler {
public:
  /// Registers with the calling thread's EventManager, if it has one.
  explicit Kicker(Kickee* kickee);
  /// Unregisters from the calling thread's EventManager.
  ~Kicker() override;

  /// The only operation that is safe from any thread.
  void kick() noexcept { event_.set(); }

private:
  void handleEvent(NativeHandle handle) override;

  Kickee* kickee_;
  Event event_;
};

} // namespace plat
