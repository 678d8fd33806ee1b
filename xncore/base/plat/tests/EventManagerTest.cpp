// The event table and the wait: registration rules, round-robin service and
// how timers shorten the wait.

#include "plat/EventManager.h"

#include "ErrorText.h"

#include "plat/Clock.h"
#include "plat/Event.h"
#include "plat/Timer.h"
#include "plat/TimerManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace plat {
namespace {

// Records every handle it serves; leaves the event signalled.
struct Served : EventHandler {
  void handleEvent(NativeHandle handle) override { handles.push_back(handle); }
  void eventManagerDestroyed() override { ++destroyed; }
  std::vector<NativeHandle> handles;
  int destroyed = 0;
};

struct Changes : EventManager::Listener {
  void handlerChanged(NativeHandle handle, bool added) override {
    seen.push_back(std::to_string(handle) + (added ? "+" : "-"));
  }
  std::vector<std::string> seen;
};

TEST(EventManager, TableHoldsAtMost63HandlesAndTellsItsListener) {
  Served first, second;
  Changes changes;
  {
    EventManager manager;
    EXPECT_EQ(EventManager::current(), &manager);
    manager.setListener(&changes);
    for (NativeHandle handle = 100; handle < 163; ++handle)
      manager.setHandler(handle, &first);
    EXPECT_EQ(test::errorOf([&] { manager.setHandler(163, &first); }),
              "Maximum number of events exceeded");
    manager.setHandler(100, &second); // a known handle is replaced in its place
    manager.setHandler(162, nullptr);
    manager.setHandler(999, nullptr); // unknown: no change, no news
    NativeHandle table[EventManager::maxEvents];
    ASSERT_EQ(manager.getEvents(table), 62u);
    EXPECT_EQ(table[0], 100);
    EXPECT_TRUE(manager.fireEvent(100));
    EXPECT_FALSE(manager.fireEvent(162));
    EXPECT_EQ(second.handles, std::vector<NativeHandle>{100});
    EXPECT_EQ(changes.seen.size(), 65u);
    EXPECT_EQ(changes.seen[63], "100+");
    EXPECT_EQ(changes.seen[64], "162-");
  }
  EXPECT_EQ(first.destroyed + second.destroyed, 62);
  EXPECT_EQ(EventManager::current(), nullptr);
  EXPECT_EQ(test::errorOf([] { EventManager::get(); }), "No EventManager");
}

TEST(EventManager, AlwaysSignalledHandlesAreServedInTurn) {
  Event busy, other, late;
  Served served; // outlives the manager, which tells it when it goes
  EventManager manager;
  for (const Event* event : {&busy, &other, &late})
    manager.setHandler(event->handle(), &served);
  busy.set();
  other.set();
  for (int turn = 0; turn < 4; ++turn)
    manager.wait(nullptr, 0);
  late.set();
  for (int turn = 0; turn < 3; ++turn)
    manager.wait(nullptr, 0);
  NativeHandle b = busy.handle(), o = other.handle(), l = late.handle();
  EXPECT_EQ(served.handles, (std::vector<NativeHandle>{b, o, b, o, l, b, o}));
  served.handles.clear();
  manager.processAllEvents(); // each signalled handle once
  EXPECT_EQ(served.handles.size(), 3u);
}

TEST(EventManager, WaitTimesOutOnlyAtTheCallersLimit) {
  EventManager manager;
  bool timedOut = false;
  EXPECT_FALSE(manager.wait(nullptr, 20, &timedOut));
  EXPECT_TRUE(timedOut) << "nothing registered: a plain sleep";

  TimerManager timers;
  struct : Timer::Callback {
    bool timedOut(Timer*) override { return false; }
  } ignore;
  Timer soon(&ignore);
  soon.start(10);
  Ticks start = monotonicTime();
  manager.wait(nullptr, 10'000, &timedOut);
  EXPECT_FALSE(timedOut) << "a wake for a timer is no time-out";
  EXPECT_LT(monotonicTime() - start, 5 * ticksPerSecond);
  EXPECT_TRUE(soon.isActive()) << "the wait only wakes; firing is the caller's";
}

} // namespace
} // namespace plat
