// Timers on a clock that the test moves by hand, so that every expiry is exact.

#include "plat/Timer.h"

#include "Capture.h"
#include "ManualClock.h"

#include "plat/TimerManager.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace plat {
namespace {

using plattest::advanceMs;
using plattest::fakeClock;
using plattest::fakeNow;

// Each timer writes its name into the shared record when it fires.
struct Named : Timer::Callback {
  Named(std::vector<std::string>& fired, std::string timerName,
        std::function<bool(Timer*)> then = nullptr)
      : record(fired), name(std::move(timerName)), action(std::move(then)) {}
  bool timedOut(Timer* fired) override {
    record.push_back(name);
    return action ? action(fired) : false;
  }
  std::vector<std::string>& record;
  std::string name;
  std::function<bool(Timer*)> action;
  Timer timer{this};
};

class TimerTest : public testing::Test {
protected:
  void SetUp() override { fakeNow = 1000 * ticksPerSecond; }
  TimerManager manager{false, &fakeClock};
  std::vector<std::string> fired;
};

TEST_F(TimerTest, FiresInExpiryOrderAndEqualExpiriesInStartOrder) {
  Named a(fired, "a"), b(fired, "b"), c(fired, "c"), d(fired, "d");
  a.timer.start(30);
  b.timer.start(10);
  c.timer.start(20);
  d.timer.start(10);
  EXPECT_EQ(manager.nextTimeout(), 10);
  advanceMs(9);
  EXPECT_EQ(manager.process(), 1) << "not due yet";
  EXPECT_TRUE(fired.empty());
  advanceMs(21);
  EXPECT_EQ(manager.process(), 0);
  EXPECT_EQ(fired, (std::vector<std::string>{"b", "d", "c", "a"}));
  EXPECT_FALSE(a.timer.isActive());
  EXPECT_EQ(manager.process(), -1) << "no timers left";
}

TEST_F(TimerTest, StopAndRestartFromInsideAFiring) {
  Named late(fired, "stopped");
  Named restarting(fired, "restarting", [](Timer* timer) {
    timer->start(50);
    return false; // the restart holds, whatever is returned
  });
  Named stopper(fired, "stopper", [&](Timer*) {
    late.timer.stop();
    return false;
  });
  stopper.timer.start(10);
  restarting.timer.start(10);
  late.timer.start(10);
  advanceMs(10);
  manager.process();
  EXPECT_EQ(fired, (std::vector<std::string>{"stopper", "restarting"}));
  EXPECT_FALSE(late.timer.isActive());
  EXPECT_EQ(manager.nextTimeout(), 50);
}

TEST_F(TimerTest, RepeatingTimerKeepsItsIntervalAndDropsMissedPeriods) {
  Named repeating(fired, "r", [](Timer*) { return true; });
  repeating.timer.start(100);
  advanceMs(130); // late by 30 ms: the next expiry stays on the 100 ms grid
  manager.process();
  EXPECT_EQ(manager.nextTimeout(), 70);
  advanceMs(70 + 350); // held up for 350 ms: one firing, then a full interval
  manager.process();
  EXPECT_EQ(fired.size(), 2u);
  EXPECT_EQ(manager.nextTimeout(), 100);
}

TEST_F(TimerTest, ZeroMsTimerThatRepeatsFiresOncePerProcess) {
  Named eager(fired, "eager", [](Timer*) { return true; });
  eager.timer.start(0);
  manager.process();
  manager.process();
  EXPECT_EQ(fired.size(), 2u);
}

TEST_F(TimerTest, NextTimeoutRoundsUpToWholeMilliseconds) {
  Named a(fired, "a");
  EXPECT_EQ(manager.nextTimeout(), -1);
  a.timer.start(5);
  fakeNow += 5 * ticksPerMillisecond - 1;
  EXPECT_EQ(manager.nextTimeout(), 1);
  fakeNow += 2;
  EXPECT_EQ(manager.nextTimeout(), 0) << "overdue";
  a.timer.start(std::numeric_limits<std::int32_t>::max());
  Ticks now = 0;
  EXPECT_EQ(manager.nextTimeout(&now), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(now, fakeNow);
  EXPECT_EQ(a.timer.remaining(), Ticks{std::numeric_limits<std::int32_t>::max()} * 10'000);
}

TEST_F(TimerTest, ClockJumpRestartsEveryTimerFromNow) {
  plattest::LogCapture log;
  Named shortTimer(fired, "short"), longTimer(fired, "long");
  shortTimer.timer.start(10);
  longTimer.timer.start(600'000);
  advanceMs(10 + 240'000);
  EXPECT_EQ(manager.process(), 0) << "still within the limit";
  shortTimer.timer.start(10);
  advanceMs(10 + 240'000);
  fakeNow += 1;
  EXPECT_EQ(manager.process(), 10) << "restarted rather than fired";
  EXPECT_EQ(fired, std::vector<std::string>{"short"});
  EXPECT_EQ(log.lines("Timer"),
            std::vector<std::string>{"30 Time has moved backwards - restarting timers"});
  advanceMs(10);
  manager.process();
  EXPECT_EQ(manager.nextTimeout(), 600'000 - 10);
}

TEST_F(TimerTest, ListenerHearsOfEachNewNextTimeout) {
  struct : TimerManager::Listener {
    void nextTimeoutChanged(std::int32_t ms) override { heard.push_back(ms); }
    std::vector<std::int32_t> heard;
  } listener;
  manager.setListener(&listener);
  Named a(fired, "a"), b(fired, "b");
  a.timer.start(20);
  b.timer.start(40); // not the head: no news
  a.timer.stop();
  advanceMs(40);
  manager.process();
  EXPECT_EQ(listener.heard, (std::vector<std::int32_t>{20, 40, -1}));
}

TEST_F(TimerTest, ManagerStopsItsTimersWhenDestroyed) {
  Named a(fired, "a");
  {
    TimerManager nested(true, &fakeClock);
    a.timer.start(10);
    EXPECT_EQ(manager.nextTimeout(), -1) << "the nested manager took it";
  }
  EXPECT_FALSE(a.timer.isActive());
  EXPECT_EQ(&TimerManager::get(), &manager);
  EXPECT_DEATH({ TimerManager second; }, "nested \\|\\| !thrInst");
}

} // namespace
} // namespace plat
