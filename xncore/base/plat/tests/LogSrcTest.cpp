// Log sources: levels, formatting, the sink, the process-wide list and the
// listing of names for help.
#include "plat/LogSrc.h"

#include "Capture.h"

#include "plat/utf8.h"

#include <gtest/gtest.h>

#include <climits>
#include <new>
#include <sstream>
#include <string>
#include <vector>

namespace {

TEST(LogSrc, EachOperationWritesAtItsLevel) {
  plat::LogSrc source("Levels");
  plattest::LogCapture capture;
  source.error("e %d", 1);
  source.info("i %s", "two");
  source.debug("d");
  source.trace("t");
  source.write(7, "w%c", '!');
  std::vector<plattest::LogRecord> records = capture.from("Levels");
  ASSERT_EQ(records.size(), 5u);
  int levels[] = {0, 30, 100, 110, 7};
  const char* texts[] = {"e 1", "i two", "d", "t", "w!"};
  for (std::size_t i = 0; i < records.size(); ++i) {
    EXPECT_EQ(records[i].level, levels[i]);
    EXPECT_EQ(records[i].text, texts[i]);
  }
}

TEST(LogSrc, EverythingPassesBeforeConfiguration) {
  plat::LogSrc source("Open");
  EXPECT_EQ(source.level(), INT_MAX);
  EXPECT_TRUE(source.passes(INT_MAX));
  EXPECT_TRUE(source.passes(plat::LogSrc::levelTrace));
}

TEST(LogSrc, WriteLinesSkipsEmptyLines) {
  plat::LogSrc source("Lines");
  plattest::LogCapture capture;
  source.writeLines(30, "first\n\nsecond\nthird\n");
  source.writeLines(30, nullptr);
  source.writeLines(30, "");
  std::vector<plattest::LogRecord> records = capture.from("Lines");
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(records[0].text, "first");
  EXPECT_EQ(records[1].text, "second");
  EXPECT_EQ(records[2].text, "third");
}

TEST(LogSrc, RecordsNeverHoldControlsOrInvalidUtf8) {
  plat::LogSrc source("Escaped");
  plattest::LogCapture capture;
  const char* inputs[] = {"a~b", "tab\there", "caf\xC3\xA9", "bad \xFF", "line\nbreak"};
  for (const char* input : inputs)
    source.info("%s", input);
  std::vector<plattest::LogRecord> records = capture.from("Escaped");
  ASSERT_EQ(records.size(), std::size(inputs));
  EXPECT_EQ(records[0].text, "a~~b");
  for (const plattest::LogRecord& record : records) {
    EXPECT_TRUE(plat::isValidUtf8(record.text.c_str())) << record.text;
    for (char ch : record.text)
      EXPECT_GE(static_cast<unsigned char>(ch), 32) << record.text;
  }
  EXPECT_EQ(records[1].text.rfind("tab~", 0), 0u);
  EXPECT_EQ(records[2].text, "caf\xC3\xA9");
  EXPECT_EQ(records[3].text.rfind("bad ~", 0), 0u);
  EXPECT_EQ(records[4].text.rfind("line~", 0), 0u);
}

TEST(LogSrc, LongMessagesAreCutToTheBuffer) {
  plat::LogSrc source("Long");
  plattest::LogCapture capture;
  std::string big(10000, 'x');
  source.info("%s", big.c_str());
  std::vector<plattest::LogRecord> records = capture.from("Long");
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0].text, std::string(4095, 'x'));
}

TEST(LogSrc, WithoutSinkRecordsAreDropped) {
  plat::LogSrc source("Dropped");
  plattest::LogCapture capture;
  plat::LogSink capturing = plat::setLogSink(nullptr);
  ASSERT_NE(capturing, nullptr);
  source.error("nobody hears this");
  EXPECT_EQ(plat::setLogSink(capturing), nullptr);
  source.error("heard");
  std::vector<plattest::LogRecord> records = capture.from("Dropped");
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0].text, "heard");
}

TEST(LogSrc, SourcesJoinTheListAtTheHeadAndLeaveIt) {
  plat::LogSrc* before = plat::LogSrc::first();
  {
    plat::LogSrc older("OlderSource");
    plat::LogSrc newer("NewerSource");
    EXPECT_EQ(plat::LogSrc::first(), &newer);
    EXPECT_EQ(newer.next(), &older);
    EXPECT_EQ(older.next(), before);
    EXPECT_EQ(plat::findLogSrc("newersource"), &newer);
    EXPECT_EQ(plat::findLogSrc("OLDERSOURCE"), &older);
  }
  EXPECT_EQ(plat::LogSrc::first(), before);
  EXPECT_EQ(plat::findLogSrc("NewerSource"), nullptr);
  EXPECT_NE(plat::findLogSrc("configparameter"), nullptr);
}

TEST(LogNames, ListedInLinesThatFitTheWidth) {
  plat::LogSrc a("AAAAAAAAAA");
  plat::LogSrc b("BBBBBBBBBB");
  plat::LogSrc c("CCCCCCCCCC");
  std::string listed = plattest::captureStream([](std::FILE* out) { plat::listLogNames(30, out); });

  // Space starts at 28 and each name takes its length plus 2: two names of
  // ten fit on a line, the third starts the next.
  EXPECT_EQ(listed.rfind("  CCCCCCCCCC, BBBBBBBBBB,\n  AAAAAAAAAA", 0), 0u) << listed;
  ASSERT_FALSE(listed.empty());
  EXPECT_EQ(listed.back(), '\n');

  std::vector<std::string> names;
  std::istringstream stream(listed);
  for (std::string line; std::getline(stream, line);) {
    EXPECT_LE(line.size(), 29u) << line;
    EXPECT_EQ(line.rfind("  ", 0), 0u);
    std::istringstream pieces(line.substr(2));
    for (std::string piece; std::getline(pieces, piece, ',');) {
      if (!piece.empty() && piece[0] == ' ')
        piece.erase(0, 1);
      if (!piece.empty())
        names.push_back(piece);
    }
  }
  std::vector<std::string> expected;
  for (plat::LogSrc* source = plat::LogSrc::first(); source; source = source->next())
    expected.push_back(source->name());
  EXPECT_EQ(names, expected);
}

TEST(LogNames, NoDestinationsYet) {
  EXPECT_EQ(plattest::captureStream([](std::FILE* out) { plat::listLogDests(out); }), "");
}

TEST(LogSrcDeathTest, LoggingThroughAnUnconstructedSourceIsFatal) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the undefined-behaviour sanitizer stops the call before the check runs";
#endif
  // A static source of another translation unit looks like this before its
  // constructor has run: storage whose constructed flag is still clear.
  alignas(plat::LogSrc) unsigned char storage[sizeof(plat::LogSrc)];
  auto* source = new (storage) plat::LogSrc("Gone");
  source->~LogSrc();
  EXPECT_EXIT(source->error("too early"), testing::ExitedWithCode(1),
              "Assertion 'constructed' failed");
}

} // namespace
