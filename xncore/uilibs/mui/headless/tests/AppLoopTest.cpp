// The application loop on the headless message queue: the order of one turn,
// deferred deletion between notifications, and how run ends.

#include "os/AppLoop.h"

#include "io/SocketManager.h"
#include "mui/headless/MessageQueueHeadless.h"
#include "plat/DeferredDeleter.h"
#include "plat/Event.h"
#include "plat/LogSrc.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace mui {
namespace {

std::vector<std::string> heard;

struct Recorder : plat::EventHandler, plat::Timer::Callback, io::FdHandler {
  void handleEvent(plat::NativeHandle) override { heard.push_back("handle"); }
  bool timedOut(plat::Timer*) override {
    heard.push_back("timer");
    return false;
  }
  void readReady() override { heard.push_back("readable"); }
  void writeReady() override { heard.push_back("writable"); }
};

class AppLoopTest : public testing::Test {
protected:
  void SetUp() override {
    heard.clear();
    os::setMessageQueue(&queue);
  }
  void TearDown() override { os::setMessageQueue(nullptr); }

  MessageQueueHeadless queue;
  io::SocketManager& manager = io::processSocketManager();
};

TEST_F(AppLoopTest, OneTurnServesAHandleTimersDescriptorsAndLastTheMessage) {
  os::AppLoopImpl loop(manager, &queue);
  Recorder recorder;
  plat::Timer timer(&recorder);
  plat::Event event;
  manager.events().setHandler(event.handle(), &recorder);
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  recorder.fd = ends[0];
  ASSERT_EQ(write(ends[1], "x", 1), 1);

  auto turnWith = [&](bool signalled, bool selected) {
    heard.clear();
    queue.post([] { heard.push_back("message"); });
    timer.start(0);
    if (signalled)
      event.set();
    manager.add(&recorder);
    manager.select(&recorder, selected, selected, false, false);
    loop.turn();
    event.reset();
    manager.remove(&recorder);
    return heard;
  };
  using Order = std::vector<std::string>;
  EXPECT_EQ(turnWith(true, false), (Order{"handle", "timer", "message"}));
  EXPECT_EQ(turnWith(false, true), (Order{"timer", "readable", "writable", "message"}));

  manager.events().setHandler(event.handle(), nullptr);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(AppLoopTest, DeferredDeleteComesAfterTheNotificationAndBeforeTheNextMessage) {
  struct Dialog {
    ~Dialog() { heard.push_back("deleted"); }
  };
  os::AppLoop loop;
  queue.post([] {
    plat::deleteLater(new Dialog);
    plat::deleteLater<Dialog>(nullptr);
    heard.push_back("handler returns");
  });
  queue.post([] { os::AppLoop::quit(0); });
  loop.run();
  EXPECT_EQ(heard, (std::vector<std::string>{"handler returns", "deleted"}));
}

TEST_F(AppLoopTest, QuitEndsRunWithItsCode) {
  os::AppLoop loop;
  queue.post([] { os::AppLoop::quit(7); });
  queue.post([] { heard.push_back("never"); });
  EXPECT_EQ(loop.run(), 7);
  EXPECT_FALSE(loop.running());
  EXPECT_TRUE(plat::logInitialised()) << "the loop ends the start-up phase of logging";
  EXPECT_EQ(queue.pending(), 1u) << "nothing after the quit";

  os::AppLoop::quit(3);
  EXPECT_EQ(loop.run(), 3) << "a quit before run";
  EXPECT_EQ(queue.pending(), 1u);

  queue.post([] { os::AppLoop::quit(0); });
  EXPECT_EQ(loop.run(), 0) << "the stop request was cleared";
  EXPECT_EQ(heard, std::vector<std::string>{"never"});
}

TEST_F(AppLoopTest, OneLoopAndOneRunAtATime) {
  os::AppLoop loop;
  EXPECT_DEATH(os::AppLoop second, "!inst");
  queue.post([&] { loop.run(); });
  EXPECT_DEATH(loop.run(), "!isRunning");
}

} // namespace
} // namespace mui
