#include "os/AppLoop.h"

#include "io/SocketManager.h"
#include "plat/Assertion.h"
#include "plat/LogConfig.h"
#include "plat/MessageQueue.h"

#include <utility>

namespace os {

namespace {

AppLoop* theLoop = nullptr;
plat::MessageQueue* installedQueue = nullptr;

// The checks name the loop as its callers know it.
void checkLoop(bool expected, int line) noexcept {
  if ((theLoop != nullptr) != expected)
    plat::assertionFailed(plat::AssertionFail(expected ? "inst" : "!inst", __FILE__, line));
}

} // namespace

AppLoop::AppLoop(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {
  checkLoop(false, __LINE__);
  theLoop = this;
  if (!impl_)
    impl_ = std::make_unique<AppLoopImpl>(io::processSocketManager(), installedQueue);
}

AppLoop::~AppLoop() {
  impl_.reset();
  theLoop = nullptr;
}

AppLoop& AppLoop::inst() noexcept {
  checkLoop(true, __LINE__);
  return *theLoop;
}

int AppLoop::run() {
  // From here the destinations that "Log" names are in force and early lines
  // are no longer kept; only the first run changes anything.
  plat::logInit();
  XN_ASSERT(!isRunning);
  struct Running {
    bool& flag;
    explicit Running(bool& running) : flag(running) { flag = true; }
    ~Running() { flag = false; }
  } running(isRunning);
  if (!stopRequested_)
    impl_->run();
  stopRequested_ = false;
  return exitCode_;
}

AppLoop* AppLoop::instOrNull() noexcept {
  return theLoop;
}

void AppLoop::quit(int code) noexcept {
  AppLoop& loop = inst();
  loop.exitCode_ = code;
  loop.stopRequested_ = true;
  loop.impl_->wake();
}

bool AppLoop::runNested(const bool& running) {
  AppLoopImpl* impl = XN_CHECKED_CAST(AppLoopImpl, impl_.get());
  while (running && !stopRequested_)
    impl->turn();
  return std::exchange(stopRequested_, false);
}

void AppLoop::setTranslateMessages(bool translate) noexcept {
  XN_CHECKED_CAST(AppLoopImpl, impl_.get())->setTranslateMessages(translate);
}

void AppLoopImpl::run() {
  AppLoop& loop = AppLoop::inst();
  while (!loop.stopRequested())
    turn();
}

void AppLoopImpl::turn() {
  if (manager_->wait(queue_, -1) && !preTranslate(*queue_))
    queue_->dispatch(translateMessages_);
}

bool AppLoopImpl::preTranslate(plat::MessageQueue&) {
  return false;
}

void setMessageQueue(plat::MessageQueue* queue) noexcept {
  installedQueue = queue;
}

plat::MessageQueue* messageQueue() noexcept {
  return installedQueue;
}

} // namespace os
