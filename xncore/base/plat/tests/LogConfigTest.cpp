// The parameter "Log": its elements and patterns, the routing of sources, the
// messages that wait in memory and their replay, the IPC queue, the records of
// assertions, and the start of logging for good. The last changes the process
// for good, so it stands last; CTest runs every case in a process of its own.
#include "plat/LogConfig.h"

#include "Capture.h"

#include "plat/Assertion.h"
#include "plat/LogDest.h"
#include "plat/LogDestFile.h"
#include "plat/LogDestIpc.h"
#include "plat/LogDestMem.h"
#include "plat/LogParameters.h"
#include "plat/LogSrc.h"
#include "plat/NameCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

// A named destination that records "<level> <source>: <text>".
class Recorder : public plat::LogDest {
public:
  explicit Recorder(const char* name = "rec") : LogDest(name) {}
  void write(int level, const char* source, const char* text) override {
    lines.push_back(std::to_string(level) + " " + source + ": " + text);
    sources.push_back(source);
  }
  bool isAvailable() override { return available; }

  /// The records of `source` as "<level> <text>".
  Lines of(const std::string& source) const {
    Lines selected;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (sources[i] == source)
        selected.push_back(lines[i].substr(0, lines[i].find(' ') + 1) +
                           lines[i].substr(lines[i].find(": ") + 2));
    }
    return selected;
  }

  Lines lines;
  Lines sources;
  bool available = true;
};

void setLog(const char* text) {
  plat::logParameter.setFromString(text, plat::priorityPreference);
}

TEST(LogConfig, ElementsThatConfigureNothingSayWhyOrNothing) {
  Recorder rec;
  struct Case {
    const char* element;
    const char* complaint;
  };
  for (const Case& c : {
           Case{"*:rec", "Failed to parse log param element: '*:rec'\n"},
           Case{"Foo:rec:abc", "Failed to parse log param element: 'Foo:rec:abc'\n"},
           Case{"*:rec:-1", "Failed to parse log param element: '*:rec:-1'\n"},
           Case{"*:rec:+1", "Failed to parse log param element: '*:rec:+1'\n"},
           Case{"*:rec: 1", "Failed to parse log param element: '*:rec: 1'\n"},
           Case{"*:rec:1:2", "Failed to parse log param element: '*:rec:1:2'\n"},
           Case{"*:rec:99999999999", "Failed to parse log param element: '*:rec:99999999999'\n"},
           Case{"*:nosuch:10", "No LogDest found: 'nosuch'\n"},
           Case{"*::10", ""},
           Case{"", ""},
       }) {
    plat::LogElement parsed;
    std::string complaint = plattest::captureStream(
        [&](std::FILE* out) { EXPECT_FALSE(plat::parseLogElement(c.element, parsed, out)); });
    EXPECT_EQ(complaint, c.complaint) << c.element;
  }

  plat::LogElement parsed;
  ASSERT_TRUE(plat::parseLogElement("Config*:REC:007", parsed, nullptr));
  EXPECT_STREQ(parsed.pattern.get(), "Config*");
  EXPECT_EQ(parsed.dest, &rec);
  EXPECT_EQ(parsed.level, 7);

  // A text of nothing but commas configures nothing and says nothing.
  testing::internal::CaptureStderr();
  setLog(",,,");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(plat::findLogSrc("ConfigParameter")->level(), -1);
}

TEST(LogConfig, PatternsMatchWithStarsAndOptionallyWithoutCase) {
  struct Case {
    const char* pattern;
    const char* text;
    bool caseSensitive;
    bool matches;
  };
  const std::string many(3000, 'a');
  for (const Case& c : {
           Case{"*", "", true, true},
           Case{"*", "anything", true, true},
           Case{"", "", true, true},
           Case{"", "x", true, false},
           Case{"Config*", "ConfigParameter", true, true},
           Case{"config*", "Configuration", false, true},
           Case{"config*", "Configuration", true, false},
           Case{"a*b*c", "aXXbYc", true, true},
           Case{"a*b", "ab", true, true},
           Case{"a*b", "abc", true, false},
           Case{"*b*", "abc", true, true},
           Case{"a**", "a", true, true},
           Case{"a*a*a*a*a*a*a*a*a*b", many.c_str(), true, false},
           Case{nullptr, "x", true, false},
           Case{"*", nullptr, true, false},
       }) {
    EXPECT_EQ(plat::matchPattern(c.pattern, c.text, c.caseSensitive), c.matches)
        << (c.pattern ? c.pattern : "<null>") << " / "
        << (c.text ? std::string(c.text).substr(0, 20) : "<null>");
  }
}

TEST(LogConfig, LogRoutesMatchingSourcesUpToTheirLevel) {
  Recorder rec;
  plat::LogSrc one("AlphaOne"), two("AlphaTwo"), beta("Beta");
  auto levels = [&] { return std::vector<int>{one.level(), two.level(), beta.level()}; };

  setLog("*:rec:10");
  EXPECT_EQ(levels(), (std::vector<int>{10, 10, 10}));
  one.info("too detailed");
  one.error("written");
  setLog("*:rec:100");
  beta.info("now wanted");
  // The message that was too detailed waited in memory until it was wanted.
  EXPECT_EQ(rec.of("AlphaOne"), (Lines{"0 written", "30 too detailed"}));
  EXPECT_EQ(rec.of("Beta"), (Lines{"30 now wanted"}));

  // Patterns ignore case, and a later element wins for the same pair.
  setLog("alpha*:rec:30,ALPHAONE:rec:0");
  EXPECT_EQ(levels(), (std::vector<int>{0, 30, -1}));

  plat::setLogOverride("Beta:rec:5");
  EXPECT_EQ(levels(), (std::vector<int>{-1, -1, 5}));
  EXPECT_STREQ(plat::logOverride().get(), "Beta:rec:5");
  plat::setLogOverride(nullptr);
  EXPECT_EQ(levels(), (std::vector<int>{0, 30, -1}));

  plat::addLogElement("Beta:rec:110");
  EXPECT_EQ(levels(), (std::vector<int>{0, 30, 110}));
}

TEST(LogConfig, WaitingMessagesAreReplayedOnceIntoTheDestinationsThatWantThem) {
  plat::LogDestMem::instance().clear();
  Recorder rec;
  plat::LogSrc early("Early");
  early.trace("t");
  early.debug("d");
  early.error("e");

  // Only "*" replays: a narrower pattern leaves the messages waiting.
  setLog("Early:rec:110");
  EXPECT_EQ(rec.of("Early"), Lines{});
  setLog("*:rec:100");
  EXPECT_EQ(rec.of("Early"), (Lines{"100 d", "0 e"}));
  EXPECT_EQ(rec.lines.front(), "100 LogDestMem: Start replaying stored messages");
  EXPECT_EQ(rec.lines.back(), "100 LogDestMem: Finished replaying stored messages");
  Recorder other("other");
  EXPECT_EQ(plat::replayLogElement("Early:other:110"), -1);
  EXPECT_EQ(plat::replayLogElement("*:other:110"), 110);
  EXPECT_EQ(other.of("Early"), Lines{"110 t"});
  setLog("*:rec:110");
  EXPECT_EQ(rec.of("Early"), (Lines{"100 d", "0 e", "110 t"}));

  // A destination that is not available lets its messages wait.
  rec.available = false;
  early.error("held");
  rec.available = true;
  plat::reconfigureLog();
  EXPECT_EQ(rec.of("Early").back(), "0 held");
  EXPECT_EQ(plat::LogDestMem::instance().size(), 0u);
}

TEST(LogConfig, MemoryKeepsFiveHundredMessagesAndAMarker) {
  plat::LogDestMem& memory = plat::LogDestMem::instance();
  memory.clear();
  plat::LogSrc flood("Flood");
  for (int i = 0; i < 502; ++i)
    flood.info("m%d", i);
  Recorder rec;
  memory.replay(rec, 110);
  ASSERT_EQ(rec.lines.size(), 503u);
  EXPECT_EQ(rec.lines[500], "30 Flood: m499");
  EXPECT_EQ(rec.lines[501], "0 LogDestMem: Too many messages, discarding further ones");
}

// The collector's end of the channel.
class Collector : public plat::LogDestIpc::Channel {
public:
  void sendLogMsg(int level, const char* source, const char* text) override {
    sent.push_back(std::to_string(level) + " " + source + ": " + std::to_string(std::strlen(text)));
  }
  void flushOutput() override { ++flushes; }
  void signal() override { ++signals; }

  Lines sent;
  int flushes = 0;
  int signals = 0;
};

TEST(LogConfig, IpcQueueIsBoundedAndWaitsForTheCollectorsLevel) {
  plat::LogDestMem::instance().clear();
  plat::LogDestIpc& ipc = plat::LogDestIpc::instance();
  EXPECT_EQ(plat::findLogDest("IPC"), &ipc);
  Collector collector;
  ipc.setChannel(&collector, "tag");
  plat::LogSrc remote("Remote");
  setLog("*:ipc:100");
  remote.error("%s", std::string(2000, 'x').c_str());
  for (int i = 0; i < 1001; ++i)
    remote.debug("d");
  EXPECT_EQ(ipc.pendingCount(), 1001u);
  ipc.flush();
  EXPECT_TRUE(collector.sent.empty()); // the collector has not spoken yet

  ipc.setCollectorLevel(30);
  EXPECT_EQ(remote.level(), 30);
  ASSERT_EQ(collector.sent.size(), 2u);
  EXPECT_EQ(collector.sent[0], "0 tag: Remote: 1024");
  EXPECT_EQ(collector.sent[1], "0 tag: LogDestIpc: 42");
  EXPECT_EQ(collector.flushes, 1);
  remote.error("now");
  remote.debug("above the collector's level");
  EXPECT_EQ(collector.signals, 1);
  EXPECT_EQ(ipc.pendingCount(), 1u);
  ipc.setChannel(nullptr, nullptr);
}

TEST(LogConfigDeathTest, AssertionsWriteToTheirSource) {
  plattest::LogCapture capture;
  XN_ASSERT_WARN(1 + 1 == 3);
  EXPECT_THAT(capture.lines("Assertion"), testing::ElementsAre(testing::StartsWith(
                                              "0 Warning: Assertion '1 + 1 == 3' failed")));

  EXPECT_EXIT(
      {
        plat::LogDestFile dest(nullptr, "app", stderr);
        plat::attachLogDest("Assertion", &dest, 0);
        XN_ASSERT(1 + 1 == 3);
      },
      testing::ExitedWithCode(1),
      "Assertion: Assertion '1 \\+ 1 == 3' failed at [^\n]*\n.*Assertion: stacktrace: ");
}

TEST(LogConfig, LogInitDropsWhatNoDestinationWants) {
  Recorder rec;
  plat::LogSrc late("Late");
  setLog("*:rec:30");
  late.debug("waits");
  EXPECT_GT(plat::LogDestMem::instance().size(), 0u);

  plat::logInit();
  EXPECT_EQ(plat::LogDestMem::instance().size(), 0u);
  late.debug("dropped");
  plat::LogSrc lonely("Lonely");
  lonely.error("nobody listens");
  late.info("written");
  EXPECT_EQ(plat::LogDestMem::instance().size(), 0u);
  EXPECT_EQ(rec.of("Late"), Lines{"30 written"});
  EXPECT_FALSE(late.passes(100));
}

} // namespace
