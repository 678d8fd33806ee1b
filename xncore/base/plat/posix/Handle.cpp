#include "plat/Handle.h"

#include "plat/Event.h"
#include "plat/Exception.h"

#include <errno.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <vector>

namespace plat {

Handle::~Handle() {
  if (handle_ != noHandle)
    close(static_cast<int>(handle_));
}

int waitForHandles(const NativeHandle* handles, std::size_t count, int timeoutMs, int* error) {
  // The table is short (at most 63 entries); a small fixed array keeps the
  // idle loop free of allocations.
  constexpr std::size_t inlineCount = 64;
  pollfd inlineFds[inlineCount];
  std::vector<pollfd> moreFds;
  pollfd* fds = inlineFds;
  if (count > inlineCount) {
    moreFds.resize(count);
    fds = moreFds.data();
  }
  for (std::size_t i = 0; i < count; ++i)
    fds[i] = pollfd{static_cast<int>(handles[i]), POLLIN, 0};
  int ready = poll(fds, count, timeoutMs < 0 ? -1 : timeoutMs);
  if (ready < 0) {
    if (errno == EINTR)
      return static_cast<int>(count);
    if (error)
      *error = errno;
    return waitFailed;
  }
  if (ready == 0)
    return waitTimedOut;
  // A descriptor that failed or hung up counts as signalled, so that its
  // handler gets to see it rather than the loop spinning on it.
  for (std::size_t i = 0; i < count; ++i)
    if (fds[i].revents != 0)
      return static_cast<int>(i);
  return waitTimedOut;
}

namespace {

int makeEventFd() {
  int fd = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  // The failure keeps the text that the rest of the system knows it by.
  if (fd < 0)
    throw SystemException("CreateEvent", errno);
  return fd;
}

} // namespace

Event::Event() : handle_(makeEventFd()) {}

// The counter stays above zero, and the descriptor readable, until a read
// takes it back to zero.
void Event::set() noexcept {
  std::uint64_t one = 1;
  [[maybe_unused]] ssize_t written = write(static_cast<int>(handle()), &one, sizeof one);
}

void Event::reset() noexcept {
  std::uint64_t count;
  [[maybe_unused]] ssize_t got = read(static_cast<int>(handle()), &count, sizeof count);
}

} // namespace plat
