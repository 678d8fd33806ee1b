#include "io/SocketManager.h"

namespace io {

bool SocketManager::wait(plat::MessageQueue* queue, int timeoutMs, bool* timedOut) {
  bool gotMessage = events_.wait(queue, timeoutMs, timedOut);
  dispatch();
  return gotMessage;
}

SocketManager& processSocketManager() {
  static SocketManager manager;
  return manager;
}

} // namespace io
