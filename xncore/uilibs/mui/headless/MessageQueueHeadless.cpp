#include "mui/headless/MessageQueueHeadless.h"

namespace mui {

bool MessageQueueHeadless::take() {
  if (pending_.empty())
    return false;
  taken_ = std::move(pending_.front());
  pending_.pop_front();
  return true;
}

int MessageQueueHeadless::block(const plat::NativeHandle* handles, std::size_t count, int timeoutMs,
                                int* error) {
  return plat::waitForHandles(handles, count, timeoutMs, error);
}

void MessageQueueHeadless::dispatch(bool) {
  Message message = std::move(taken_);
  taken_ = nullptr;
  if (message)
    message();
}

} // namespace mui
