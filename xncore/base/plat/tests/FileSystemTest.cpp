// The file system operations on real temporary directories: what they do,
// "not found" as an answer, and failures that name the path and carry the
// system's error text.

#include "plat/FileSystem.h"

#include "TempDir.h"

#include "plat/Calendar.h"
#include "plat/DirEnumerator.h"
#include "plat/Exception.h"
#include "plat/FileTree.h"

#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>

namespace plat {
namespace {

namespace fs = std::filesystem;
using test::TempDir;

// The message a SystemExceptionFmt of `what` and `code` must carry.
std::string systemMessage(const std::string& what, int code) {
  return what + ": " + strerror(code) + " (" + std::to_string(code) + ")";
}

template <class Action>
void expectSystemFailure(Action action, const std::string& what, int code) {
  try {
    action();
    ADD_FAILURE() << "no exception for " << what;
  } catch (const SystemException& e) {
    EXPECT_EQ(e.what(), systemMessage(what, code));
    EXPECT_EQ(e.code(), code) << what;
    EXPECT_EQ(e.type(), "System/" + std::to_string(code));
  }
}

template <class Action>
void expectFailure(Action action, const std::string& message) {
  try {
    action();
    ADD_FAILURE() << "no exception, expected " << message;
  } catch (const Exception& e) {
    EXPECT_EQ(e.what(), message);
  }
}

std::string hex(int code) {
  char text[16];
  snprintf(text, sizeof text, "0x%x", code);
  return text;
}

mode_t permissionsOf(const std::string& path) {
  return static_cast<mode_t>(fs::status(path).permissions() & fs::perms::mask);
}

TEST(FileExists, AnswersForFilesAndDirectories) {
  TempDir dir;
  std::string file = dir.write("file.txt", "x");
  EXPECT_TRUE(fileExists(file.c_str()));
  EXPECT_TRUE(fileExists(dir.path().c_str()));
  EXPECT_TRUE(isDirectory(dir.path().c_str()));
  EXPECT_FALSE(isDirectory(file.c_str()));
}

TEST(FileExists, NotFoundIsFalseNotAnError) {
  TempDir dir;
  std::string file = dir.write("file.txt", "x");
  for (const std::string& path :
       {dir.path("missing"), dir.path("missing/dir/file"), file + "/below-a-file"}) {
    EXPECT_FALSE(fileExists(path.c_str())) << path;
    EXPECT_FALSE(isDirectory(path.c_str())) << path;
  }
}

TEST(FileExists, OtherFailuresRaiseWithThePath) {
  TempDir dir;
  std::string loop = dir.path("loop");
  fs::create_symlink(loop, loop);
  expectSystemFailure([&] { fileExists(loop.c_str()); }, "fileExists(" + loop + ")", ELOOP);

  // The message is cut to the size of an exception's text.
  std::string tooLong = dir.path(std::string(300, 'n'));
  try {
    fileExists(tooLong.c_str());
    ADD_FAILURE() << "no exception";
  } catch (const SystemException& e) {
    EXPECT_EQ(e.code(), ENAMETOOLONG);
    EXPECT_EQ(std::string(e.what()), ("fileExists(" + tooLong).substr(0, Exception::textSize - 1));
  }
}

TEST(FileAttributes, GivesSizeAndModificationTime) {
  TempDir dir;
  std::string file = dir.write("data.bin", std::string(1234, 'z'));
  EXPECT_EQ(fileGetSize(file.c_str()), 1234);
  EXPECT_EQ(fileGetSize(dir.write("empty", "").c_str()), 0);

  Ticks when = makeTicks(2021, 3, 4, 5, 6, 7) + 5'000'000;
  timespec times[2] = {{0, UTIME_OMIT},
                       {static_cast<time_t>(1'614'834'367), 500'000'000}}; // 2021-03-04T05:06:07.5Z
  ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
  EXPECT_EQ(fileGetTime(file.c_str()), when);

  std::string missing = dir.path("missing");
  expectSystemFailure([&] { fileGetSize(missing.c_str()); }, "fileGetSize(" + missing + ")",
                      ENOENT);
  expectSystemFailure([&] { fileGetTime(missing.c_str()); }, "fileGetTime(" + missing + ")",
                      ENOENT);
}

TEST(FileOpenFd, OpensInEachMode) {
  TempDir dir;
  std::string file = dir.path("new.txt");
  int fd = fileOpenFd(file.c_str(), fileModeWrite, 0600);
  ASSERT_GE(fd, 0);
  EXPECT_EQ(write(fd, "hello", 5), 5);
  EXPECT_NE(fcntl(fd, F_GETFD) & FD_CLOEXEC, 0) << "descriptors are not inherited";
  close(fd);
  EXPECT_EQ(TempDir::read(file), "hello");
  EXPECT_EQ(permissionsOf(file), 0600u);

  fd = fileOpenFd(file.c_str(), fileModeUpdate);
  EXPECT_EQ(write(fd, "J", 1), 1);
  close(fd);
  EXPECT_EQ(TempDir::read(file), "Jello");

  fd = fileOpenFd(file.c_str(), fileModeRead);
  char buffer[8] = {};
  EXPECT_EQ(read(fd, buffer, sizeof buffer), 5);
  EXPECT_EQ(write(fd, "x", 1), -1) << "read mode is read only";
  close(fd);

  fd = fileOpenFd(file.c_str(), fileModeWrite);
  close(fd);
  EXPECT_EQ(TempDir::read(file), "");

  std::string missing = dir.path("missing");
  expectSystemFailure([&] { fileOpenFd(missing.c_str(), fileModeRead); },
                      "fileOpenFd(" + missing + ")", ENOENT);
}

TEST(FileRename, ReplacesTheTarget) {
  TempDir dir;
  std::string from = dir.write("new", "new content");
  std::string to = dir.write("old", "old content");
  fileRename(from.c_str(), to.c_str());
  EXPECT_FALSE(fs::exists(from));
  EXPECT_EQ(TempDir::read(to), "new content");

  std::string missing = dir.path("missing");
  expectSystemFailure([&] { fileRename(missing.c_str(), to.c_str()); },
                      "fileRename(" + missing + "," + to + ")", ENOENT);
}

TEST(FileCopy, CopiesAndReplaces) {
  TempDir dir;
  std::string content(200'000, 'c');
  content[123'456] = 'd';
  std::string from = dir.write("from", content);
  std::string to = dir.write("to", "old");
  fileCopy(from.c_str(), to.c_str());
  EXPECT_EQ(TempDir::read(to), content);
  EXPECT_EQ(TempDir::read(from), content);

  std::string missing = dir.path("missing");
  expectFailure([&] { fileCopy(missing.c_str(), to.c_str()); },
                "Cannot copy file (from:" + missing + " to:" + to + "): " + hex(ENOENT));
  expectFailure([&] { fileCopy(from.c_str(), nullptr); },
                "Cannot copy file (from:" + from + " to:<none>): " + hex(EINVAL));
  std::string intoMissingDir = dir.path("no/such/dir");
  expectFailure([&] { fileCopy(from.c_str(), intoMissingDir.c_str()); },
                "Cannot copy file (from:" + from + " to:" + intoMissingDir + "): " + hex(ENOENT));
}

TEST(FileMove, MovesWithinAndAcrossFileSystems) {
  TempDir dir;
  std::string from = dir.write("a", "moved");
  std::string to = dir.path("b");
  fileMove(from.c_str(), to.c_str());
  EXPECT_FALSE(fs::exists(from));
  EXPECT_EQ(TempDir::read(to), "moved");

  // /dev/shm is a memory file system of its own, so rename(2) cannot reach it.
  TempDir other("/dev/shm");
  ASSERT_NE(fs::status(other.path()).type(), fs::file_type::not_found);
  struct stat here {
  }, there{};
  ASSERT_EQ(stat(dir.path().c_str(), &here), 0);
  ASSERT_EQ(stat(other.path().c_str(), &there), 0);
  ASSERT_NE(here.st_dev, there.st_dev) << "the test needs two file systems";
  std::string across = other.path("c");
  fileMove(to.c_str(), across.c_str());
  EXPECT_FALSE(fs::exists(to));
  EXPECT_EQ(TempDir::read(across), "moved");

  std::string missing = dir.path("missing");
  expectFailure([&] { fileMove(missing.c_str(), to.c_str()); },
                "Cannot rename file (from:" + missing + " to:" + to + "): " + hex(ENOENT));
  expectFailure([&] { fileMove(nullptr, to.c_str()); },
                "Cannot move file (from:<none> to:" + to + "): " + hex(EINVAL));
  // Across file systems onto a directory: the rename is refused for the
  // distance, and then the copy fails.
  std::string directory = other.path("directory");
  fs::create_directory(directory);
  std::string source = dir.write("d", "x");
  expectFailure([&] { fileMove(source.c_str(), directory.c_str()); },
                "Cannot move file (from:" + source + " to:" + directory + "): " + hex(EISDIR));
  EXPECT_TRUE(fs::exists(source)) << "a failed move keeps the source";
}

TEST(FileDelete, DeletesOrSaysWhy) {
  TempDir dir;
  std::string file = dir.write("doomed", "x");
  fileDelete(file.c_str());
  EXPECT_FALSE(fs::exists(file));
  expectFailure([&] { fileDelete(file.c_str()); },
                "Cannot delete file (" + file + "): " + hex(ENOENT));
}

TEST(MkDir, CreatesOnceAndToleratesAnExistingDirectory) {
  TempDir dir;
  std::string sub = dir.path("sub");
  EXPECT_TRUE(mkDir(sub.c_str()));
  EXPECT_TRUE(fs::is_directory(sub));
  EXPECT_FALSE(mkDir(sub.c_str()));
  expectSystemFailure([&] { mkDir(sub.c_str(), false); }, "mkDir(" + sub + ")", EEXIST);

  fs::permissions(sub, fs::perms::owner_all);
  EXPECT_FALSE(mkDir(sub.c_str(), true, false));
  EXPECT_EQ(permissionsOf(sub), 0700u);
  EXPECT_FALSE(mkDir(sub.c_str(), true, true));
  EXPECT_EQ(permissionsOf(sub), 0755u);

  std::string file = dir.write("file", "x");
  expectSystemFailure([&] { mkDir(file.c_str()); }, "mkDir(" + file + ")", EEXIST);
  std::string deep = dir.path("a/b");
  expectSystemFailure([&] { mkDir(deep.c_str()); }, "mkDir(" + deep + ")", ENOENT);
}

TEST(MkDir, CreatesEveryMissingAncestor) {
  TempDir dir;
  std::string deep = dir.path("a/b/c");
  EXPECT_TRUE(mkDirPath(deep.c_str()));
  EXPECT_TRUE(fs::is_directory(deep));
  EXPECT_FALSE(mkDirPath(deep.c_str()));
  EXPECT_FALSE(mkDirPath((deep + "/../c/").c_str()));
  std::string file = dir.write("file", "x");
  // The step that fails names the path in the way.
  std::string belowFile = file + "/sub";
  expectSystemFailure([&] { mkDirPath(belowFile.c_str()); }, "mkDir(" + file + ")", EEXIST);
}

TEST(MakePrivateDir, KeepsOwnDirectoriesAndMovesAnythingElseAside) {
  TempDir dir;
  std::string path = dir.path("private");
  EXPECT_TRUE(makePrivateDir(path.c_str()));
  EXPECT_TRUE(fs::is_directory(path));
  EXPECT_EQ(permissionsOf(path), 0700u);

  dir.write("private/keep", "kept");
  fs::permissions(path, fs::perms::owner_all | fs::perms::group_all | fs::perms::others_read);
  EXPECT_FALSE(makePrivateDir(path.c_str()));
  EXPECT_EQ(permissionsOf(path), 0700u);
  EXPECT_EQ(TempDir::read(path + "/keep"), "kept");

  std::string occupied = dir.write("occupied", "a file in the way");
  EXPECT_TRUE(makePrivateDir(occupied.c_str()));
  EXPECT_TRUE(fs::is_directory(occupied));
  EXPECT_EQ(TempDir::read(occupied + ".bad"), "a file in the way");

  std::string link = dir.path("link");
  fs::create_directory_symlink(path, link);
  EXPECT_TRUE(makePrivateDir(link.c_str()));
  EXPECT_FALSE(fs::is_symlink(link));
  EXPECT_TRUE(fs::is_symlink(link + ".bad"));
}

TEST(CurrentDir, FollowsChDir) {
  std::string original = getCurrentDir().get();
  EXPECT_EQ(original, fs::current_path().string());
  TempDir dir;
  // A deep directory, so that its path is longer than a first guess of a buffer.
  std::string deep = dir.path(std::string(100, 'a') + "/" + std::string(100, 'b') + "/" +
                              std::string(100, 'c') + "/" + std::string(100, 'd'));
  fs::create_directories(deep);
  chDir(deep.c_str());
  std::string now = getCurrentDir().get();
  chDir(original.c_str());
  EXPECT_EQ(now, fs::canonical(deep).string());
  EXPECT_EQ(getCurrentDir().get(), original);

  std::string missing = dir.path("missing");
  expectSystemFailure([&] { chDir(missing.c_str()); }, "chDir(" + missing + ")", ENOENT);
}

TEST(DirEnumerator, ListsEntriesWithoutDots) {
  TempDir dir;
  dir.write("a.txt", "a");
  dir.write("b.txt", "b");
  dir.write("sub/inner", "i");
  fs::create_symlink(dir.path("sub"), dir.path("link"));
  std::set<std::string> names, directories, paths;
  DirEnumerator entries(dir.path().c_str());
  while (entries.next()) {
    names.insert(entries.name());
    paths.insert(entries.path().get());
    if (entries.isDirectory())
      directories.insert(entries.name());
  }
  EXPECT_EQ(names, (std::set<std::string>{"a.txt", "b.txt", "link", "sub"}));
  EXPECT_EQ(directories, std::set<std::string>{"sub"});
  EXPECT_EQ(paths.count(dir.path("sub")), 1u);
  EXPECT_FALSE(entries.next()) << "stays at the end";

  std::string missing = dir.path("missing");
  expectSystemFailure([&] { DirEnumerator none(missing.c_str()); }, "opendir(" + missing + ")",
                      ENOENT);
}

TEST(FindFileInTree, SearchesEveryLevel) {
  TempDir dir;
  dir.write("top.txt", "t");
  dir.write("one/two/three/target.cfg", "deep");
  dir.write("one/other.cfg", "o");
  fs::create_directories(dir.path("empty/dir"));
  EXPECT_EQ(std::string(findFileInTree(dir.path().c_str(), "target.cfg").get()),
            dir.path("one/two/three/target.cfg"));
  EXPECT_EQ(std::string(findFileInTree(dir.path().c_str(), "top.txt").get()), dir.path("top.txt"));
  EXPECT_TRUE(findFileInTree(dir.path().c_str(), "absent.cfg").isNull());
  EXPECT_TRUE(findFileInTree(dir.path().c_str(), "two").isNull()) << "only files count";
}

TEST(FindUniqueName, NumbersTheNameUntilItIsFree) {
  TempDir dir;
  std::string base = dir.path();
  auto unique = [&](const char* name, const char* separator, const char* suffix, int tries) {
    return std::string(findUniqueName(base.c_str(), name, separator, suffix, tries).get());
  };
  EXPECT_EQ(unique("report.txt", "(", ")", 100), dir.path("report.txt"));
  dir.write("report.txt", "");
  EXPECT_EQ(unique("report.txt", "(", ")", 100), dir.path("report(1).txt"));
  dir.write("report(1).txt", "");
  EXPECT_EQ(unique("report.txt", "(", ")", 100), dir.path("report(2).txt"));
  EXPECT_EQ(unique("app.log.20240101", "(", ")", 100), dir.path("app.log.20240101"));
  dir.write("data", "");
  EXPECT_EQ(unique("data", "-", "", 100), dir.path("data-1"));
  EXPECT_EQ(unique("a:b?.txt", "(", ")", 100), dir.path("a-b-.txt"));
  expectFailure([&] { unique("report.txt", "(", ")", 2); }, "Too many files with same name");
}

} // namespace
} // namespace plat
