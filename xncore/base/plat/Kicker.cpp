#include "plat/Kicker.h"

#include "plat/EventManager.h"

namespace plat {

Kicker::Kicker(Kickee* kickee) : kickee_(kickee) {
  if (EventManager* manager = EventManager::current())
    manager->setHandler(event_.handle(), this);
}

Kicker::~Kicker() {
  if (EventManager* manager = EventManager::current())
    manager->setHandler(event_.handle(), nullptr);
}

void Kicker::handleEvent(NativeHandle) {
  // Reset before the call, so that a kick during it is not lost.
  event_.reset();
  kickee_->kicked(this);
}

} // namespace plat
