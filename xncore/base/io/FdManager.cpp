#include "io/FdManager.h"

#include "plat/ThreadSlot.h"

#include <algorithm>

namespace io {

namespace {

using CurrentManager = plat::ThreadSlot<FdManager>;

// The lists are sorted, without repeats.
void insert(std::vector<FdHandler*>& list, FdHandler* handler) {
  auto at = std::lower_bound(list.begin(), list.end(), handler);
  if (at == list.end() || *at != handler)
    list.insert(at, handler);
}

void erase(std::vector<FdHandler*>& list, FdHandler* handler) {
  auto at = std::lower_bound(list.begin(), list.end(), handler);
  if (at != list.end() && *at == handler)
    list.erase(at);
}

} // namespace

FdManager::FdManager() : timers_(true), previous_(CurrentManager::get()) {
  CurrentManager::set(this);
}

FdManager::~FdManager() {
  for (FdHandler* handler : fds_)
    handler->fdManagerDestroyed();
  CurrentManager::set(previous_);
}

FdManager* FdManager::current() noexcept {
  return CurrentManager::get();
}

void FdManager::add(FdHandler* handler) {
  insert(fds_, handler);
}

void FdManager::remove(FdHandler* handler) {
  deselect(handler->fd);
  for (List* list : {&fds_, &readable_, &writable_, &addressChanged_, &readableWork_,
                     &writableWork_, &addressChangedWork_})
    erase(*list, handler);
}

void FdManager::select(FdHandler* handler, bool read, bool write, bool accept, bool addressChange) {
  if (!read && !accept && !addressChange) {
    erase(readable_, handler);
    erase(readableWork_, handler);
  }
  if (!write) {
    erase(writable_, handler);
    erase(writableWork_, handler);
  }
  erase(addressChanged_, handler);
  erase(addressChangedWork_, handler);
  select(handler->fd, read, write, accept, addressChange);
}

void FdManager::markReadable(FdHandler* handler) {
  insert(readable_, handler);
}
void FdManager::markWritable(FdHandler* handler) {
  insert(writable_, handler);
}
void FdManager::markAddressChanged(FdHandler* handler) {
  insert(addressChanged_, handler);
}

FdHandler* FdManager::handlerOf(int fd) const noexcept {
  auto found = std::find_if(fds_.begin(), fds_.end(), [fd](FdHandler* h) { return h->fd == fd; });
  return found != fds_.end() ? *found : nullptr;
}

void FdManager::dispatch() {
  timers_.process();
  deliver(addressChanged_, addressChangedWork_, &FdHandler::addressChanged);
  deliver(readable_, readableWork_, &FdHandler::readReady);
  deliver(writable_, writableWork_, &FdHandler::writeReady);
}

// Marks that come during the delivery wait for the next one. One handler is
// taken at a time, so that a handler may remove others from `working`.
void FdManager::deliver(List& marked, List& working, void (FdHandler::*notify)()) {
  marked.swap(working);
  marked.clear();
  while (!working.empty()) {
    FdHandler* handler = working.back();
    working.pop_back();
    (handler->*notify)();
  }
}

} // namespace io
