#include "io/SocketManager.h"

#include "plat/Exception.h"

#include <errno.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace io {

namespace {

class Descriptor {
public:
  explicit Descriptor(int fd = -1) noexcept : fd_(fd) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }
  ~Descriptor() {
    if (fd_ >= 0)
      close(fd_);
  }
  int get() const noexcept { return fd_; }

private:
  int fd_;
};

} // namespace

// One epoll set holds every selected descriptor and, while anyone wants to
// hear of address changes, a route socket that reports them. The set's own
// descriptor is readable while any member is ready, which makes it the one
// handle that the event manager waits on.
class SocketManager::Readiness {
public:
  Readiness() : epoll_(epoll_create1(EPOLL_CLOEXEC)) {
    if (epoll_.get() < 0)
      throw plat::SystemException("epoll_create1", errno);
  }

  int handle() const noexcept { return epoll_.get(); }

  void watch(int fd, bool read, bool write) {
    std::uint32_t events = (read ? EPOLLIN | EPOLLRDHUP : 0u) | (write ? EPOLLOUT : 0u);
    if (events == 0) {
      forget(fd);
      return;
    }
    epoll_event change{events, {}};
    change.data.fd = fd;
    if (epoll_ctl(handle(), EPOLL_CTL_MOD, fd, &change) == 0)
      return;
    if (errno != ENOENT || epoll_ctl(handle(), EPOLL_CTL_ADD, fd, &change) != 0)
      throw plat::SystemException("epoll_ctl", errno);
  }

  void forget(int fd) noexcept { epoll_ctl(handle(), EPOLL_CTL_DEL, fd, nullptr); }

  // Best effort: without a route socket (a sandbox may refuse one) the
  // handler is simply never told.
  void watchAddresses(FdHandler* handler, bool on) {
    auto at = std::find(addressWatchers_.begin(), addressWatchers_.end(), handler);
    if (on && at == addressWatchers_.end())
      addressWatchers_.push_back(handler);
    if (!on && at != addressWatchers_.end())
      addressWatchers_.erase(at);
    if (!addressWatchers_.empty() && routes_.get() < 0)
      openRouteSocket();
    else if (addressWatchers_.empty())
      routes_ = Descriptor();
  }

  // Marks the handlers of what is ready now.
  void collect(SocketManager& manager) {
    constexpr int batch = 32;
    epoll_event ready[batch];
    int count = epoll_wait(handle(), ready, batch, 0);
    for (int i = 0; i < count; ++i) {
      int fd = ready[i].data.fd;
      std::uint32_t events = ready[i].events;
      if (fd == routes_.get()) {
        drainRouteSocket();
        for (FdHandler* handler : addressWatchers_)
          manager.markAddressChanged(handler);
      } else if (FdHandler* handler = manager.handlerOf(fd)) {
        // Errors and hang-ups concern both directions: the next read or
        // write tells the handler what happened.
        if (events & (EPOLLIN | EPOLLRDHUP | EPOLLHUP | EPOLLERR))
          manager.markReadable(handler);
        if (events & (EPOLLOUT | EPOLLERR))
          manager.markWritable(handler);
      }
    }
  }

private:
  void openRouteSocket() {
    Descriptor routes(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
    epoll_event change{EPOLLIN, {}};
    change.data.fd = routes.get();
    if (routes.get() >= 0 &&
        bind(routes.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
        epoll_ctl(handle(), EPOLL_CTL_ADD, routes.get(), &change) == 0)
      routes_ = std::move(routes);
  }

  void drainRouteSocket() noexcept {
    char buffer[4096];
    while (recv(routes_.get(), buffer, sizeof buffer, 0) > 0) {
    }
  }

  Descriptor epoll_;
  Descriptor routes_;
  std::vector<FdHandler*> addressWatchers_;
};

SocketManager::SocketManager() : readiness_(std::make_unique<Readiness>()) {
  events_.setHandler(readiness_->handle(), this);
}

SocketManager::~SocketManager() {
  events_.setHandler(readiness_->handle(), nullptr);
}

void SocketManager::select(int fd, bool read, bool write, bool accept, bool addressChange) {
  readiness_->watch(fd, read || accept, write);
  if (FdHandler* handler = handlerOf(fd))
    readiness_->watchAddresses(handler, addressChange);
}

void SocketManager::deselect(int fd) {
  readiness_->forget(fd);
  if (FdHandler* handler = handlerOf(fd))
    readiness_->watchAddresses(handler, false);
}

void SocketManager::handleEvent(plat::NativeHandle) {
  readiness_->collect(*this);
}

} // namespace io
