// File destinations on a real temporary directory: the line formats, the
// banner, the size limit, the rotation of earlier files and the file that
// "LogDir" and "LogFile" name.
#include "plat/LogDestFile.h"

#include "TempDir.h"

#include "plat/Clock.h"
#include "plat/LogDestMem.h"
#include "plat/LogParameters.h"
#include "plat/LogPlatform.h"
#include "plat/LogRotation.h"
#include "plat/LogSrc.h"

#include <gtest/gtest.h>
#include <time.h>
#include <unistd.h>
#include <utime.h>

#include <ctime>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using plat::test::TempDir;
using Lines = std::vector<std::string>;

Lines readLines(const std::string& path) {
  std::istringstream in(TempDir::read(path));
  Lines lines;
  for (std::string line; std::getline(in, line);)
    lines.push_back(line);
  return lines;
}

std::set<std::string> namesIn(const TempDir& dir) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(dir.path()))
    names.insert(entry.path().filename().string());
  return names;
}

void setModified(const std::string& path, std::time_t when) {
  utimbuf times{when, when};
  ASSERT_EQ(utime(path.c_str(), &times), 0) << path;
}

// The name under which the rotation keeps a file last changed at `when`.
std::string rotatedName(const char* leaf, std::time_t when, const char* unique = "") {
  std::tm local;
  localtime_r(&when, &local);
  char stamp[32];
  std::strftime(stamp, sizeof stamp, "%Y%m%d%H%M%S", &local);
  return std::string(leaf) + unique + "." + stamp;
}

TEST(LogDestFile, LinesCarryTimeHostAppProcessAndThePriorityOfTheirLevel) {
  TempDir dir;
  plat::LogDestFile dest("lines", "myapp", nullptr);
  EXPECT_FALSE(dest.isAvailable());
  std::string path = dir.path("sub/dir/app.log");
  dest.setPath(path.c_str());
  EXPECT_TRUE(dest.isAvailable());
  std::string banner = "banner";
  for (int i = 0; i < 30; ++i)
    banner += " word" + std::to_string(i);
  plat::setLogBanner(banner.c_str());

  for (int level : {0, 5, 10, 30, 31, 110})
    dest.write(level, "Src", "hello");
  plat::compactLogParameter.setFromString("1", plat::priorityPreference);
  dest.write(0, "Src", "compact");
  plat::compactLogParameter.unset(plat::priorityPreference, true);

  Lines lines = readLines(path);
  std::size_t bannerLines = 0;
  std::string unwrapped;
  for (; bannerLines < lines.size() && lines[bannerLines][0] != '<'; ++bannerLines) {
    EXPECT_LE(lines[bannerLines].size(), 79u) << lines[bannerLines];
    unwrapped += (bannerLines ? " " : "") + lines[bannerLines];
  }
  EXPECT_EQ(unwrapped, banner);
  EXPECT_GT(bannerLines, 1u);
  lines.erase(lines.begin(), lines.begin() + static_cast<long>(bannerLines));
  ASSERT_EQ(lines.size(), 7u);
  std::regex full("<(\\d+)> (\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d)\\.\\d{3}Z " +
                  std::string(plat::computerName().get()) + " myapp\\[" + std::to_string(getpid()) +
                  "\\]: Src: hello");
  std::vector<int> priorities;
  for (int i = 0; i < 6; ++i) {
    std::smatch match;
    ASSERT_TRUE(std::regex_match(lines[i], match, full)) << lines[i];
    priorities.push_back(std::stoi(match[1]));
    std::tm utc = {};
    ASSERT_TRUE(strptime(match[2].str().c_str(), "%Y-%m-%dT%H:%M:%S", &utc));
    EXPECT_LE(std::abs(timegm(&utc) - std::time(nullptr)), 5) << "not UTC: " << lines[i];
  }
  EXPECT_EQ(priorities, (std::vector<int>{11, 12, 13, 14, 15, 15}));
  EXPECT_TRUE(std::regex_match(lines[6], std::regex("\\d\\d:\\d\\d:\\d\\d\\.\\d{3} Src: compact")))
      << lines[6];

  // Each new file starts with the banner again; a file begun without one
  // takes it before its next line once there is one.
  std::string second = dir.path("second.log");
  dest.setPath(second.c_str());
  dest.write(0, "Src", "again");
  EXPECT_EQ(readLines(second).size(), bannerLines + 1);
  plat::setLogBanner(nullptr);
  std::string third = dir.path("third.log");
  dest.setPath(third.c_str());
  dest.write(0, "Src", "bare");
  plat::setLogBanner(banner.c_str());
  dest.write(0, "Src", "late");
  dest.write(0, "Src", "once");
  plat::setLogBanner(nullptr);
  EXPECT_EQ(readLines(third).size(), bannerLines + 3);
}

TEST(LogDestFile, AWriteThatReachesTheSizeLimitClosesTheFileUntilTheLimitChanges) {
  TempDir dir;
  std::string path = dir.path("app.log");
  plat::LogDestFile dest("sized", "app", nullptr);
  dest.setPath(path.c_str());
  dest.setMaxSize(300);
  int fullCalls = 0;
  dest.setOnFull([&] { ++fullCalls; });
  std::string text(100, 'a');

  dest.write(30, "S", ("one " + text).c_str());
  EXPECT_EQ(fullCalls, 0);
  dest.write(30, "S", ("two " + text).c_str());
  dest.write(30, "S", "three");
  EXPECT_EQ(fullCalls, 1);
  EXPECT_GE(std::filesystem::file_size(path), 300u);
  EXPECT_EQ(readLines(path).size(), 2u);
  EXPECT_TRUE(dest.isAvailable()); // its messages are lost, not kept

  // Opening again moves the full file aside.
  dest.setMaxSize(0);
  dest.write(30, "S", "four");
  Lines now = readLines(path);
  ASSERT_EQ(now.size(), 1u);
  EXPECT_NE(now[0].find("S: four"), std::string::npos);
  std::set<std::string> names = namesIn(dir);
  ASSERT_EQ(names.size(), 2u);
  std::string rotated = dir.path(*names.rbegin());
  EXPECT_EQ(readLines(rotated).size(), 2u) << rotated;
}

TEST(LogRotation, EarlierFilesPastTheirDaysGoAndTheCurrentFileMovesAside) {
  TempDir dir;
  std::time_t now = std::time(nullptr);
  std::time_t changed = now - 3600;
  std::string path = dir.path("app.log");
  for (const char* name : {"app.log", "app.log.old", "app.log.recent", "app.logbook", "other.1"})
    dir.write(name, name);
  setModified(path, changed);
  setModified(dir.path("app.log.old"), now - 40 * 86400);
  setModified(dir.path("app.log.recent"), now - 86400);
  setModified(dir.path("app.logbook"), now - 40 * 86400);
  setModified(dir.path("other.1"), now - 40 * 86400);
  plat::Ticks tickNow = plat::timeNow();

  plat::rotateLogFile(path.c_str(), 30, tickNow);
  EXPECT_EQ(namesIn(dir), (std::set<std::string>{rotatedName("app.log", changed), "app.log.recent",
                                                 "app.logbook", "other.1"}));
  EXPECT_EQ(TempDir::read(dir.path(rotatedName("app.log", changed))), "app.log");

  // A second file of the same second takes a number.
  dir.write("app.log", "again");
  setModified(path, changed);
  plat::rotateLogFile(path.c_str(), 30, tickNow);
  EXPECT_EQ(TempDir::read(dir.path(rotatedName("app.log", changed, "(1)"))), "again");

  // Keeping 0 days deletes every earlier file of the log.
  plat::rotateLogFile(path.c_str(), 0, tickNow + plat::ticksPerSecond);
  EXPECT_EQ(namesIn(dir), (std::set<std::string>{rotatedName("app.log", changed, "(1)"),
                                                 "app.logbook", "other.1"}));
}

TEST(LogDestFile, TheFileFollowsLogDirAndLogFileWhileEnabled) {
  TempDir dir;
  ASSERT_EQ(setenv("XN_LOG_TEST_DIR", dir.path().c_str(), 1), 0);
  plat::logDirParameter.setFromString("${XN_LOG_TEST_DIR}/logs/", plat::priorityPreference);
  plat::logFileParameter.setFromString("t.log", plat::priorityPreference);
  plat::initLogDestFile("app", false);
  plat::LogDest* file = plat::findLogDest("file");
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(file->isAvailable());
  plat::enableLogFile(true);
  EXPECT_STREQ(plat::logFilePath().get(), dir.path("logs/t.log").c_str());

  plat::LogSrc source("ToFile");
  plat::addLogElement("ToFile:file:30");
  source.info("first");
  std::string absolute = dir.path("abs.log");
  plat::logFileParameter.setFromString(absolute.c_str(), plat::priorityPreference);
  source.info("second");
  EXPECT_EQ(readLines(dir.path("logs/t.log")).size(), 1u);
  EXPECT_EQ(readLines(absolute).size(), 1u);

  // A file that cannot be opened loses its messages, and memory stays as it was.
  plat::logFileParameter.setFromString((absolute + "/inside.log").c_str(),
                                       plat::priorityPreference);
  std::size_t waiting = plat::LogDestMem::instance().size();
  source.info("lost");
  EXPECT_EQ(plat::LogDestMem::instance().size(), waiting);

  plat::enableLogFile(false);
  EXPECT_FALSE(file->isAvailable());
  source.info("waits");
  EXPECT_EQ(plat::LogDestMem::instance().size(), waiting + 1);
  EXPECT_EQ(readLines(absolute).size(), 1u);
}

} // namespace
