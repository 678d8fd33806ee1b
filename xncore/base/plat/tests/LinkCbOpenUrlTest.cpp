// Opening a link: the opener found on PATH gets the address as its one
// argument, untouched by any shell, and is waited for so that no zombie stays.
// A fake opener in a temporary directory writes its pid and arguments down.
#include "plat/LinkCbOpenUrl.h"

#include "ErrorText.h"
#include "TempDir.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace {

using plat::test::TempDir;

// Sets PATH for the life of the object.
class PathOverride {
public:
  explicit PathOverride(const std::string& path) : saved_(getenv("PATH") ? getenv("PATH") : "") {
    setenv("PATH", path.c_str(), 1);
  }
  PathOverride(const PathOverride&) = delete;
  PathOverride& operator=(const PathOverride&) = delete;
  ~PathOverride() { setenv("PATH", saved_.c_str(), 1); }

private:
  std::string saved_;
};

// Polls for up to ten seconds, for what another process does.
template <class Condition>
bool eventually(Condition condition) {
  for (int i = 0; i < 1000 && !condition(); ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  return condition();
}

TEST(LinkCbOpenUrl, HandsTheAddressOverAsOneArgument) {
  TempDir dir;
  std::string record = dir.path("record");
  std::string opener = dir.write("xdg-open", "#!/bin/sh\n"
                                             "{ echo $$; echo $#; printf '%s\\n' \"$1\"; } > '" +
                                                 record +
                                                 ".part'\n"
                                                 "/bin/mv '" +
                                                 record + ".part' '" + record + "'\n");
  chmod(opener.c_str(), 0755);
  PathOverride path(dir.path());

  const std::string url = "https://h.example/a b?q=1&r=$HOME;'x' `id` \"*\"";
  plat::LinkCbOpenUrl().linkClicked(url.c_str());
  ASSERT_TRUE(eventually([&] { return std::filesystem::exists(record); }));
  std::ifstream in(record);
  std::string pid, count, argument;
  std::getline(in, pid);
  std::getline(in, count);
  std::getline(in, argument);
  EXPECT_EQ(count, "1");
  EXPECT_EQ(argument, url);
  // Reaped, the opener leaves /proc; a zombie would stay.
  EXPECT_TRUE(eventually([&] { return !std::filesystem::exists("/proc/" + pid); })) << pid;

  plat::LinkCbOpenUrl().linkClicked(nullptr); // nothing to open, nothing started
}

TEST(LinkCbOpenUrl, AMissingOpenerIsAnError) {
  TempDir dir;
  PathOverride path(dir.path());
  EXPECT_EQ(plat::test::errorOf([] { plat::LinkCbOpenUrl().linkClicked("http://h/"); }),
            "posix_spawnp(xdg-open): No such file or directory (2)");
}

} // namespace
