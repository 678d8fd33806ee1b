#include "mui/qt/MessageQueueQt.h"

#include "mui/qt/EventGlueQt.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>
#include <algorithm>

namespace mui {

namespace {

QAbstractEventDispatcher* dispatcher() {
  return QThread::currentThread()->eventDispatcher();
}

} // namespace

MessageQueueQt::MessageQueueQt() {
  limit_.setSingleShot(true);
  limit_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&limit_, &QTimer::timeout, [this] { limitReached_ = true; });
}

MessageQueueQt::~MessageQueueQt() = default;

bool MessageQueueQt::take() {
  bool handled = dispatcher()->processEvents(QEventLoop::AllEvents);
  // Outside a running QEventLoop, Qt holds back a deleteLater that was not
  // called from inside one of its own event handlers; this turn is the loop.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  rethrowFromQt();
  return handled;
}

// Notifiers for handles that left the table go; the others are only enabled
// while the loop blocks, since otherwise the loop polls the handles itself.
void MessageQueueQt::watch(const plat::NativeHandle* handles, std::size_t count) {
  const plat::NativeHandle* end = handles + count;
  for (auto it = notifiers_.begin(); it != notifiers_.end();) {
    if (std::find(handles, end, it->first) == end)
      it = notifiers_.erase(it);
    else
      ++it;
  }
  for (const plat::NativeHandle* handle = handles; handle != end; ++handle) {
    auto& notifier = notifiers_[*handle];
    if (!notifier)
      notifier = std::make_unique<QSocketNotifier>(*handle, QSocketNotifier::Read);
    notifier->setEnabled(true);
  }
}

int MessageQueueQt::block(const plat::NativeHandle* handles, std::size_t count, int timeoutMs,
                          int* error) {
  watch(handles, count);
  limitReached_ = false;
  if (timeoutMs >= 0)
    limit_.start(timeoutMs);
  dispatcher()->processEvents(QEventLoop::WaitForMoreEvents);
  limit_.stop();
  for (auto& [handle, notifier] : notifiers_)
    notifier->setEnabled(false);
  rethrowFromQt();
  int result = plat::waitForHandles(handles, count, 0, error);
  if (result == plat::waitTimedOut && !limitReached_)
    return static_cast<int>(count); // Qt had something of its own
  return result;
}

void MessageQueueQt::dispatch(bool) {}

} // namespace mui
