// Log sources: levels, formatting, the process-wide list and the listing of
// names for help.
#include "plat/LogSrc.h"

#include "Capture.h"

#include "plat/utf8.h"

#include <gtest/gtest.h>

#include <climits>
#include <new>
#include <string>

namespace {

TEST(LogSrc, RecordsCarryLevelAndSafeFormattedText) {
  plat::LogSrc source("Levels");
  EXPECT_TRUE(source.passes(INT_MAX)); // everything passes before configuration
  plattest::LogCapture capture;
  source.error("e %d", 1);
  source.debug("d");
  source.trace("t");
  source.write(7, "w%c", '!');
  source.writeLines(30, "first\n\nsecond\n");
  source.info("%s", std::string(10000, 'x').c_str());
  source.info("a~b caf\xC3\xA9");
  EXPECT_EQ(capture.lines("Levels"),
            (std::vector<std::string>{"0 e 1", "100 d", "110 t", "7 w!", "30 first", "30 second",
                                      "30 " + std::string(4095, 'x'), "30 a~~b caf\xC3\xA9"}));

  for (const char* input : {"tab\there", "bad \xFF", "line\nbreak"}) {
    source.info("%s", input);
    std::string record = capture.lines("Levels").back();
    EXPECT_TRUE(plat::isValidUtf8(record.c_str())) << record;
    EXPECT_NE(record.find('~'), std::string::npos) << record;
    for (char ch : record)
      EXPECT_GE(static_cast<unsigned char>(ch), 32) << record;
  }
}

TEST(LogSrc, SourcesJoinTheListAtTheHeadAndAreListedToFit) {
  plat::LogSrc* before = plat::LogSrc::first();
  {
    plat::LogSrc a("AAAAAAAAAA");
    plat::LogSrc b("BBBBBBBBBB");
    plat::LogSrc c("CCCCCCCCCC");
    EXPECT_EQ(plat::LogSrc::first(), &c);
    EXPECT_EQ(a.next(), before);
    EXPECT_EQ(plat::findLogSrc("bbbbbbbbbb"), &b);
    std::string listed =
        plattest::captureStream([](std::FILE* out) { plat::listLogNames(30, out); });
    // Each name takes its length plus 2 of the 28 columns after the indent.
    EXPECT_EQ(listed.rfind("  CCCCCCCCCC, BBBBBBBBBB,\n  AAAAAAAAAA", 0), 0u) << listed;
    for (std::size_t start = 0, end; (end = listed.find('\n', start)) != std::string::npos;
         start = end + 1)
      EXPECT_LE(end - start, 29u) << listed.substr(start, end - start);
    for (plat::LogSrc* source = plat::LogSrc::first(); source; source = source->next())
      EXPECT_NE(listed.find(source->name()), std::string::npos) << source->name();
  }
  EXPECT_EQ(plat::LogSrc::first(), before);
  EXPECT_EQ(plat::findLogSrc("AAAAAAAAAA"), nullptr);
}

TEST(LogSrcDeathTest, LoggingThroughAnUnconstructedSourceIsFatal) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the undefined-behaviour sanitizer stops the call before the check runs";
#endif
  // A static source of another translation unit before its constructor has run.
  alignas(plat::LogSrc) unsigned char storage[sizeof(plat::LogSrc)];
  auto* source = new (storage) plat::LogSrc("Gone");
  source->~LogSrc();
  EXPECT_EXIT(source->error("too early"), testing::ExitedWithCode(1),
              "Assertion 'constructed' failed");
}

} // namespace
