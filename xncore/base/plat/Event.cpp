#include "plat/Event.h"

#include "plat/Exception.h"

namespace plat {

bool Event::wait(int timeoutMs) {
  NativeHandle self = handle();
  for (;;) {
    int error = 0;
    int result = waitForHandles(&self, 1, timeoutMs, &error);
    if (result == 0)
      return true;
    if (result == waitTimedOut)
      return false;
    if (result == waitFailed)
      throw SystemException("WaitForSingleObject", error);
    // Interrupted by a signal: wait again. The limit starts over, which only
    // makes a timed wait longer, never shorter.
  }
}

} // namespace plat
