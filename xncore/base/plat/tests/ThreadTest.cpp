// Threads, conditions and kickers across real threads. Log lines are only
// compared once the other thread has provably stopped writing them.

#include "plat/Thread.h"

#include "Capture.h"

#include "plat/Clock.h"
#include "plat/Condition.h"
#include "plat/EventManager.h"
#include "plat/Exception.h"
#include "plat/Kicker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace plat {
namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

// "<level> <word>" of each line of the source "Threading".
std::vector<std::string> steps(const plattest::LogCapture& log) {
  std::vector<std::string> result;
  for (const std::string& line : log.lines("Threading"))
    result.push_back(line.substr(0, line.find(' ', line.find(' ') + 1)));
  return result;
}

struct Work : Thread::Runnable {
  explicit Work(std::function<void()> body = nullptr) : action(std::move(body)) {}
  void run(Thread*) override {
    ++runs;
    if (action)
      action();
  }
  std::function<void()> action;
  std::atomic<int> runs{0};
};

// Polls until the thread has ended; the state is read under the thread's lock.
void awaitStopped(Thread& thread) {
  while (thread.state() != Thread::Stopped)
    sleepMs(1);
}

TEST(Thread, RunsOnceStartedAndLogsEachStep) {
  plattest::LogCapture log;
  Work work;
  std::uint32_t id;
  {
    Thread thread("worker", &work);
    id = thread.id();
    EXPECT_EQ(thread.state(), Thread::Created);
    thread.start();
    thread.start(); // only a Created thread starts
    awaitStopped(thread);
    EXPECT_TRUE(thread.join(-1));
    EXPECT_TRUE(thread.join(0)) << "a second join";
    EXPECT_EQ(thread.state(), Thread::Joined);
  }
  EXPECT_EQ(work.runs, 1);
  EXPECT_THAT(steps(log), ElementsAre("100 created", "100 started", "100 stopped", "100 join",
                                      "110 joined", "110 destroy", "100 destroyed"));
  char created[64];
  std::snprintf(created, sizeof created, "100 created   worker %x", id);
  EXPECT_EQ(log.lines("Threading")[0], created);
  EXPECT_THAT(log.lines("Threading")[6],
              MatchesRegex("100 destroyed worker [0-9a-f]+: kernel [0-9]+ms, user [0-9]+ms"));
}

TEST(Thread, JoinBeforeStartEndsTheThreadUnrun) {
  plattest::LogCapture log;
  Work work;
  Thread thread("idle", &work);
  EXPECT_TRUE(thread.join(-1));
  thread.start();
  EXPECT_EQ(thread.state(), Thread::Joined);
  EXPECT_EQ(work.runs, 0);
  EXPECT_THAT(steps(log), ElementsAre("100 created", "100 join", "110 joined"));
}

TEST(Thread, AFailureIsLoggedWithItsType) {
  plattest::LogCapture log;
  Work work([] { throw Exception("disk gone").setType("System/5"); });
  Thread thread("failing", &work);
  thread.start();
  awaitStopped(thread);
  EXPECT_THAT(log.lines("Threading")[2],
              MatchesRegex("100 failed    failing [0-9a-f]+: \\[System/5\\] disk gone"));
}

TEST(Thread, NativeThreadsAndDetachedThreadsCannotBeJoined) {
  plattest::LogCapture log;
  Thread* self = Thread::self();
  EXPECT_EQ(Thread::self(), self) << "made once";
  EXPECT_EQ(self->state(), Thread::Native);
  EXPECT_STREQ(self->name(), "Native");
  EXPECT_FALSE(self->join(-1));
  EXPECT_THAT(steps(log), ElementsAre("100 native"));

  struct Watched : Thread {
    Watched(Runnable* work, std::atomic<bool>& gone) : Thread("watched", work), deleted(gone) {}
    ~Watched() override { deleted = true; }
    std::atomic<bool>& deleted;
  };
  Work work;
  std::atomic<bool> deleted = false;
  auto* stopped = new Watched(&work, deleted);
  stopped->start();
  awaitStopped(*stopped);
  stopped->detach();
  EXPECT_TRUE(deleted) << "a stopped thread goes at once";

  Event release;
  Work blocked([&] { release.wait(-1); });
  deleted = false;
  auto* running = new Watched(&blocked, deleted);
  running->start();
  running->detach();
  EXPECT_FALSE(running->join(0));
  release.set();
  // It deletes itself as it ends, and its last log line is the sign that it is done.
  auto destroyedLines = [&] {
    std::vector<std::string> seen = steps(log);
    return std::count(seen.begin(), seen.end(), "100 destroyed");
  };
  while (destroyedLines() < 2)
    sleepMs(1);
  EXPECT_TRUE(deleted);

  self->detach(); // a Native object goes at once and is made anew on demand
  EXPECT_EQ(Thread::self()->state(), Thread::Native);
}

TEST(Thread, TerminateEndsAThreadThatWillNotStop) {
#ifdef __SANITIZE_THREAD__
  // Its interceptors lose track of the locks that a cancelled thread's unwinding takes.
  GTEST_SKIP() << "ThreadSanitizer cannot follow a cancelled thread";
#endif
  plattest::LogCapture log;
  Event never;
  Work stuck([&] { never.wait(-1); });
  {
    Thread thread("stuck", &stuck);
    thread.start();
    while (stuck.runs == 0)
      sleepMs(1);
    EXPECT_FALSE(thread.terminate(10));
  }
  std::vector<std::string> seen = steps(log);
  EXPECT_THAT(std::vector<std::string>(seen.begin() + 2, seen.end()),
              ElementsAre("100 join", "100 timeout", "100 terminate", "110 destroy", "100 join",
                          "110 joined", "100 destroyed"));
}

TEST(Condition, WakesTheNewestWaiterFirstAndTimesOut) {
  std::recursive_mutex mutex;
  Condition condition(mutex);
  int waiting = 0;
  std::vector<std::string> woken;
  auto waiter = [&](const char* name) {
    return [&, name] {
      std::lock_guard lock(mutex);
      ++waiting;
      EXPECT_TRUE(condition.wait(-1));
      woken.push_back(name);
    };
  };
  // Seeing the count under the mutex means the waiter has let go of it, so
  // it is already in the chain.
  auto awaitWaiting = [&](int count) {
    for (;;) {
      {
        std::lock_guard lock(mutex);
        if (waiting == count)
          return;
      }
      sleepMs(1);
    }
  };
  Work first(waiter("first")), second(waiter("second"));
  Thread one("one", &first), two("two", &second);
  one.start();
  awaitWaiting(1);
  two.start();
  awaitWaiting(2);
  {
    std::lock_guard lock(mutex);
    condition.signal(1);
  }
  EXPECT_TRUE(two.join(-1));
  condition.signal(5);
  EXPECT_TRUE(one.join(-1));
  EXPECT_THAT(woken, ElementsAre("second", "first"));

  std::lock_guard lock(mutex);
  EXPECT_FALSE(condition.wait(10));
  condition.signal(1); // the timed-out waiter left the chain: nothing to wake
}

TEST(Kicker, BringsKicksFromAnotherThreadToTheOwner) {
  EventManager manager;
  struct Counter : Kickee {
    void kicked(Kicker* from) override {
      ++count;
      last = from;
    }
    int count = 0;
    Kicker* last = nullptr;
  } counter;
  Kicker kicker(&counter);
  Work kicking([&] {
    for (int i = 0; i < 3; ++i)
      kicker.kick();
  });
  Thread thread("kicking", &kicking);
  thread.start();
  EXPECT_TRUE(thread.join(-1));
  manager.wait(nullptr, 5000);
  EXPECT_EQ(counter.count, 1) << "kicks before the call come as one";
  EXPECT_EQ(counter.last, &kicker);
  bool timedOut = false;
  manager.wait(nullptr, 0, &timedOut);
  EXPECT_TRUE(timedOut) << "the kick was taken back";
}

} // namespace
} // namespace plat
