// Several threads logging at once: every line reaches the file whole and
// once, and the memory destination keeps its bound.
#include "TempDir.h"

#include "plat/LogConfig.h"
#include "plat/LogDestFile.h"
#include "plat/LogDestMem.h"
#include "plat/LogSrc.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

TEST(LogThreads, LinesFromManyThreadsArriveWholeAndOnce) {
  constexpr int threads = 6;
  constexpr int linesPerThread = 1500;
  plat::test::TempDir dir;
  std::string path = dir.path("stress.log");
  plat::LogDestFile dest(nullptr, "app", nullptr);
  dest.setPath(path.c_str());
  plat::LogSrc toFile("Stress");
  plat::LogSrc toMemory("Unconfigured");
  plat::attachLogDest("Stress", &dest, plat::LogSrc::levelTrace);
  plat::LogDestMem::instance().clear();
  const std::string padding(60, 'p');

  std::vector<std::thread> workers;
  for (int t = 0; t < threads; ++t) {
    workers.emplace_back([&, t] {
      for (int i = 0; i < linesPerThread; ++i) {
        toFile.info("thread %d line %d %s", t, i, padding.c_str());
        if (i % 10 == 0)
          toMemory.debug("thread %d line %d", t, i);
      }
    });
  }
  for (std::thread& worker : workers)
    worker.join();

  std::istringstream in(plat::test::TempDir::read(path));
  std::regex shape("<14> \\S+ \\S* app\\[\\d+\\]: Stress: thread (\\d+) line (\\d+) " + padding);
  std::vector<std::vector<int>> seen(threads, std::vector<int>(linesPerThread));
  int count = 0;
  for (std::string line; std::getline(in, line); ++count) {
    std::smatch match;
    ASSERT_TRUE(std::regex_match(line, match, shape)) << "torn: " << line;
    ++seen.at(std::stoul(match[1])).at(std::stoul(match[2]));
  }
  EXPECT_EQ(count, threads * linesPerThread);
  for (int t = 0; t < threads; ++t)
    for (int i = 0; i < linesPerThread; ++i)
      ASSERT_EQ(seen[t][i], 1) << "thread " << t << " line " << i;
  EXPECT_EQ(plat::LogDestMem::instance().size(), plat::LogDestMem::limit + 1);
}

} // namespace
