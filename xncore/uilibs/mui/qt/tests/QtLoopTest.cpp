// The application loop on Qt's event loop, with the offscreen platform: Qt
// events, descriptors and timers are all served, and an idle loop sleeps.

#include "io/SocketManager.h"
#include "mui/qt/MessageQueueQt.h"
#include "os/AppLoop.h"
#include "plat/Timer.h"

#include <gtest/gtest.h>
#include <sys/timerfd.h>
#include <time.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace mui {
namespace {

std::vector<std::string> heard;

std::int64_t clockMs(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

class QtLoop : public testing::Test {
protected:
  void SetUp() override {
    heard.clear();
    os::setMessageQueue(&queue);
  }
  void TearDown() override { os::setMessageQueue(nullptr); }

  MessageQueueQt queue;
};

// A descriptor that becomes readable while the loop is blocked posts a Qt
// event and asks Qt to delete an object; the event starts a timer; the timer
// ends the loop.
TEST_F(QtLoop, ServesDescriptorsQtEventsAndTimers) {
  struct Chain : plat::EventHandler, QObject, plat::Timer::Callback {
    void handleEvent(plat::NativeHandle handle) override {
      std::uint64_t expirations;
      ASSERT_EQ(read(static_cast<int>(handle), &expirations, sizeof expirations), 8);
      heard.push_back("descriptor");
      QCoreApplication::postEvent(this, new QEvent(QEvent::User));
      QObject* doomed = new QObject;
      QObject::connect(doomed, &QObject::destroyed, [] { heard.push_back("deleted"); });
      doomed->deleteLater();
    }
    bool event(QEvent* event) override {
      if (event->type() != QEvent::User)
        return QObject::event(event);
      heard.push_back("qt event");
      timer.start(30);
      return true;
    }
    bool timedOut(plat::Timer*) override {
      heard.push_back("timer");
      os::AppLoop::quit(5);
      return false;
    }
    plat::Timer timer{this};
  } chain;

  int alarm = timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC);
  ASSERT_GE(alarm, 0);
  itimerspec in50ms{{0, 0}, {0, 50'000'000}};
  ASSERT_EQ(timerfd_settime(alarm, 0, &in50ms, nullptr), 0);
  plat::EventManager& events = io::processSocketManager().events();
  events.setHandler(alarm, &chain);

  os::AppLoop loop;
  EXPECT_EQ(loop.run(), 5);
  EXPECT_EQ(heard, (std::vector<std::string>{"descriptor", "qt event", "deleted", "timer"}));
  events.setHandler(alarm, nullptr);
  close(alarm);
}

TEST_F(QtLoop, BlocksWhileIdle) {
  struct Quit : plat::Timer::Callback {
    bool timedOut(plat::Timer*) override {
      os::AppLoop::quit(0);
      return false;
    }
  } quit;
  os::AppLoop loop;
  plat::Timer inASecond(&quit);
  inASecond.start(1000);
  std::int64_t wallStart = clockMs(CLOCK_MONOTONIC);
  std::int64_t cpuStart = clockMs(CLOCK_PROCESS_CPUTIME_ID);
  loop.run();
  EXPECT_GE(clockMs(CLOCK_MONOTONIC) - wallStart, 1000);
  EXPECT_LT(clockMs(CLOCK_PROCESS_CPUTIME_ID) - cpuStart, 50) << "the loop spins";
}

} // namespace
} // namespace mui
