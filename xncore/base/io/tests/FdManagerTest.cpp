// Descriptor readiness: the order of delivery, changes made from inside a
// delivery, and real sockets through the epoll-backed manager.

#include "io/SocketManager.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <vector>

namespace io {
namespace {

std::vector<std::string> heard;

struct Recorder : FdHandler {
  explicit Recorder(std::string handlerName, int descriptor = -1)
      : FdHandler(descriptor), name(std::move(handlerName)) {}
  void readReady() override { note("read"); }
  void writeReady() override { note("write"); }
  void addressChanged() override { note("address"); }
  void note(const char* what) {
    heard.push_back(name + " " + what);
    if (then)
      then();
  }
  std::string name;
  std::function<void()> then;
};

// A manager whose readiness the test sets by hand.
struct HandMarked : FdManager {
  void select(int, bool, bool, bool, bool) override {}
  void deselect(int) override {}
  void markAll(Recorder& handler) {
    markWritable(&handler);
    markReadable(&handler);
    markAddressChanged(&handler);
  }
  using FdManager::select;
};

TEST(FdManager, DeliversAddressChangesThenReadableThenWritable) {
  heard.clear();
  Recorder handler("h"); // outlives the manager, which tells it when it goes
  HandMarked manager;
  manager.add(&handler);
  manager.markAll(handler);
  manager.dispatch();
  EXPECT_EQ(heard, (std::vector<std::string>{"h address", "h read", "h write"}));
  heard.clear();
  manager.dispatch();
  EXPECT_TRUE(heard.empty()) << "marks are used up";
}

TEST(FdManager, HandlerRemovedOrDeselectedDuringDeliveryIsNotCalled) {
  using Change = void (*)(HandMarked & manager, Recorder & other);
  Change remove = [](HandMarked& manager, Recorder& other) { manager.remove(&other); };
  Change deselect = [](HandMarked& manager, Recorder& other) {
    manager.select(&other, false, false, false, false);
  };
  struct Case {
    const char* what;
    Change change;
  };
  for (const Case& test : {Case{"removed", remove}, Case{"deselected", deselect}}) {
    heard.clear();
    Recorder first("first"), second("second");
    HandMarked manager;
    first.then = [&] { test.change(manager, second); };
    second.then = [&] { test.change(manager, first); };
    manager.add(&first);
    manager.add(&second);
    manager.markAll(first);
    manager.markAll(second);
    manager.dispatch();
    // Whichever comes first takes the other out of every later delivery.
    EXPECT_EQ(heard.size(), 3u) << test.what;
    for (const std::string& line : heard)
      EXPECT_EQ(line.substr(0, line.find(' ')), heard[0].substr(0, heard[0].find(' ')))
          << test.what;
  }
}

TEST(SocketManager, WaitDeliversTheReadinessOfRealSockets) {
  heard.clear();
  SocketManager manager;
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  Recorder reader("reader", ends[0]), writer("writer", ends[1]);
  manager.add(&reader);
  manager.add(&writer);
  manager.select(&reader, true, false, false, false);
  manager.select(&writer, false, true, false, false);
  manager.wait(nullptr, 5000);
  EXPECT_EQ(heard, std::vector<std::string>{"writer write"}) << "nothing to read yet";
  heard.clear();
  manager.select(&writer, false, false, false, false);
  ASSERT_EQ(write(ends[1], "x", 1), 1);
  manager.wait(nullptr, 5000);
  EXPECT_EQ(heard, std::vector<std::string>{"reader read"});
  manager.remove(&reader);
  manager.remove(&writer);
  close(ends[0]);
  close(ends[1]);
}

} // namespace
} // namespace io
