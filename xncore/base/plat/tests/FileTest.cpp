// Files and the file system on real temporary directories: plat::File and
// the stream functions, the file system operations, "not found" as an
// answer, and failures that name the path and carry the system's text.

#include "plat/File.h"

#include "Capture.h"
#include "ErrorText.h"
#include "TempDir.h"

#include "plat/Calendar.h"
#include "plat/DirEnumerator.h"
#include "plat/Exception.h"
#include "plat/FileSystem.h"
#include "plat/FileTree.h"
#include "rdr/EndOfStream.h"

#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace plat {
namespace {

using test::errorOf;

namespace fs = std::filesystem;
using test::TempDir;

// The text of a SystemException or StdlibException of `what` and `code`.
std::string systemText(const std::string& what, int code) {
  return what + ": " + strerror(code) + " (" + std::to_string(code) + ")";
}

std::string hex(int code) {
  char text[16];
  snprintf(text, sizeof text, "0x%x", code);
  return text;
}

bool isOpenDescriptor(int fd) {
  return fcntl(fd, F_GETFD) != -1;
}

mode_t permissionsOf(const std::string& path) {
  return static_cast<mode_t>(fs::status(path).permissions() & fs::perms::mask);
}

// A pipe whose reading end is a stream, filled with `content` and closed for writing.
FILE* pipeWith(const std::string& content) {
  int ends[2];
  EXPECT_EQ(pipe(ends), 0);
  EXPECT_EQ(write(ends[1], content.data(), content.size()), static_cast<ssize_t>(content.size()));
  close(ends[1]);
  return fdopen(ends[0], "rb");
}

std::string contentOf(const MBuf<unsigned char>& buffer) {
  return std::string(reinterpret_cast<const char*>(buffer.data()),
                     static_cast<std::size_t>(buffer.length()));
}

TEST(File, CreatesReplacesAndReadsBack) {
  TempDir dir;
  std::string path = dir.path("data.bin");
  File(path.c_str(), fileModeWrite).write("hello, world", 12);
  File file(path.c_str(), fileModeRead);
  char buffer[8];
  EXPECT_EQ(file.read(buffer, 5), 5u);
  EXPECT_EQ(file.read(buffer, sizeof buffer), 7u) << "a short read returns what there is";
  EXPECT_EQ(std::string(buffer, 7), ", world");
  EXPECT_THROW(file.read(buffer, 1), rdr::EndOfStream);
  EXPECT_EQ(contentOf(File(path.c_str(), fileModeRead).readAll(12)), "hello, world");
  EXPECT_EQ(errorOf([&] { File(path.c_str(), fileModeRead).readAll(11); }),
            "Error: file is too large (12 > 11)");
  File piped; // a pipe has no size, so it is read to its end
  piped.attach(pipeWith(std::string(10'000, 'p') + "q"), true);
  EXPECT_EQ(contentOf(piped.readAll(20'000)), std::string(10'000, 'p') + "q");

  struct {
    int mode, flags;
    bool exists;
    const char* content;
  } modes[] = {{fileModeUpdate, 0, true, "Jello"},
               {fileModeWrite, fileFlagAppend, true, "helloJ"},
               {fileModeUpdate, fileFlagTruncate, true, "J"},
               {fileModeWrite, 0, true, "J"},
               {fileModeUpdate, fileFlagAppend, false, "J"}};
  for (const auto& c : modes) {
    path = c.exists ? dir.write("mode", "hello") : dir.path("new" + std::to_string(c.mode));
    File(path.c_str(), c.mode, c.flags).write("J", 1);
    EXPECT_EQ(TempDir::read(path), c.content) << c.mode << "/" << c.flags << "/" << c.exists;
  }
  EXPECT_THROW(File(dir.path("none").c_str(), fileModeUpdate), SystemException)
      << "update wants an existing file unless it truncates or appends";
  path = dir.path("fd");
  int fd = fileOpenFd(path.c_str(), fileModeWrite, 0600);
  EXPECT_NE(fcntl(fd, F_GETFD) & FD_CLOEXEC, 0) << "descriptors are not inherited";
  close(fd);
  EXPECT_EQ(permissionsOf(path), 0600u);
  fd = fileOpenFd(path.c_str(), fileModeRead);
  EXPECT_EQ(write(fd, "x", 1), -1) << "read mode is read only";
  close(fd);
}

TEST(File, ReadsLinesOfAnyLength) {
  TempDir dir;
  std::string longLine(10'000, 'L');
  std::string path = dir.write("lines", "one\n\n" + longLine + "\nbad \xff\nlast without newline");
  File file(path.c_str(), fileModeRead);
  std::vector<std::string> lines;
  DString line("stale");
  while (file.readLine(line))
    lines.push_back(line.get());
  EXPECT_EQ(lines, (std::vector<std::string>{"one", "", longLine, "bad \xEF\xBF\xBD",
                                             "last without newline"}));
  EXPECT_STREQ(line.get(), "");
}

TEST(File, OwnsOnlyTheStreamsItOpensOrIsGiven) {
  {
    File reader("-", fileModeRead), writer("-", fileModeWrite, fileFlagTextMode);
    EXPECT_EQ(reader.stream(), stdin);
    EXPECT_EQ(writer.stream(), stdout);
  }
  EXPECT_TRUE(isOpenDescriptor(fileno(stdout)));
  TempDir dir;
  std::string path = dir.write("f", "x");
  FILE* owned = fopen(path.c_str(), "rb");
  FILE* borrowed = fopen(path.c_str(), "rb");
  int ownedFd = fileno(owned), borrowedFd = fileno(borrowed);
  {
    File file;
    file.attach(owned, true);
    file.attach(borrowed, false);
    EXPECT_FALSE(isOpenDescriptor(ownedFd)) << "attaching closes the owned stream";
  }
  EXPECT_TRUE(isOpenDescriptor(borrowedFd));
  fclose(borrowed);
}

TEST(File, SeeksTellsAndTruncatesBeyond32Bits) {
  TempDir dir;
  std::string path = dir.path("s");
  File file(path.c_str(), fileModeUpdate, fileFlagTruncate);
  file.write(std::string(100, 'h').data(), 100);
  fileSeek(file.stream(), 10, SEEK_SET);
  fileTruncate(file.stream(), 50);
  EXPECT_EQ(fileTell(file.stream()), 10) << "truncating keeps the position";
  EXPECT_EQ(fileStreamSize(file.stream()), 50);
  fileSeek(file.stream(), -5, SEEK_END);
  EXPECT_EQ(fileTell(file.stream()), 45);
  fileTruncate(file.stream(), 3'000'000'000LL);
  EXPECT_EQ(fileGetSize(path.c_str()), 3'000'000'000LL);
}

TEST(FileSystem, FailuresNameThePathAndCarryTheSystemText) {
  TempDir dir;
  std::string file = dir.write("file", "x"), no = dir.path("no"), loop = dir.path("loop");
  fs::create_symlink(loop, loop);
  const char* noPath = no.c_str();
  auto notFound = [&](const std::string& what) {
    return systemText(what + "(" + no + ")", ENOENT);
  };
  File piped;
  piped.attach(pipeWith("abc"), true);
  // /dev/full takes a byte into the buffer and refuses it when flushed.
  auto onFull = [](std::function<void(File&)> step) {
    return [step] {
      File full("/dev/full", fileModeWrite);
      full.setLogCloseFailure(false);
      full.write("x", 1);
      step(full);
    };
  };
  std::string big(1 << 16, 'b');
  struct {
    std::function<void()> action;
    std::string message;
  } cases[] = {
      {[&] { File(noPath, fileModeRead); }, notFound("fileOpen")},
      {[&] { File("-", fileModeUpdate); }, "Invalid mode for stdin/stdout"},
      {onFull([&](File& f) { f.write(big.data(), big.size()); }),
       systemText("writing to file failed", ENOSPC)},
      {onFull([](File& f) { f.flush(); }), systemText("fflush", ENOSPC)},
      {onFull([](File& f) { f.close(); }), systemText("fclose", ENOSPC)},
      {[&] { fileSeek(piped.stream(), 1, SEEK_SET); }, systemText("fileSeek", ESPIPE)},
      {[&] { fileTruncate(piped.stream(), 0); }, systemText("fileTruncate(ftruncate)", EINVAL)},
      {[&] { fileExists(loop.c_str()); }, systemText("fileExists(" + loop + ")", ELOOP)},
      {[&] { fileGetSize(noPath); }, notFound("fileGetSize")},
      {[&] { fileOpenFd(noPath, fileModeRead); }, notFound("fileOpenFd")},
      {[&] { chDir(noPath); }, notFound("chDir")},
      {[&] { DirEnumerator entries(noPath); }, notFound("opendir")},
      {[&] { fileRename(noPath, file.c_str()); },
       systemText("fileRename(" + no + "," + file + ")", ENOENT)},
      {[&] { mkDir(file.c_str()); }, systemText("mkDir(" + file + ")", EEXIST)},
      {[&] { mkDir(dir.path().c_str(), false); }, systemText("mkDir(" + dir.path() + ")", EEXIST)},
      {[&] { mkDirPath((file + "/a/b").c_str()); }, systemText("mkDir(" + file + ")", EEXIST)},
      {[&] { fileCopy(noPath, file.c_str()); },
       "Cannot copy file (from:" + no + " to:" + file + "): " + hex(ENOENT)},
      {[&] { fileMove(noPath, file.c_str()); },
       "Cannot rename file (from:" + no + " to:" + file + "): " + hex(ENOENT)},
      {[&] { fileDelete(noPath); }, "Cannot delete file (" + no + "): " + hex(ENOENT)}};
  for (const auto& c : cases)
    EXPECT_EQ(errorOf(c.action), c.message);
  plattest::LogCapture capture; // a destructor cannot raise, so it logs
  File("/dev/full", fileModeWrite).write("x", 1);
  EXPECT_EQ(capture.lines("File"),
            std::vector<std::string>{"0 Error closing file: " + systemText("fclose", ENOSPC)});
  // The message is cut to the size of an exception's text.
  std::string tooLong = dir.path(std::string(300, 'n'));
  EXPECT_EQ(errorOf([&] { fileExists(tooLong.c_str()); }),
            ("fileExists(" + tooLong).substr(0, Exception::textSize - 1));
}

TEST(FileSystem, AnswersWhatIsThere) {
  TempDir dir;
  std::string file = dir.write("file.txt", std::string(1234, 'z'));
  EXPECT_TRUE(fileExists(file.c_str()));
  EXPECT_TRUE(isDirectory(dir.path().c_str()));
  EXPECT_FALSE(isDirectory(file.c_str()));
  for (const std::string& path : {dir.path("missing"), dir.path("missing/dir/file"), file + "/x"}) {
    EXPECT_FALSE(fileExists(path.c_str())) << path;
    EXPECT_FALSE(isDirectory(path.c_str())) << path;
  }
  EXPECT_EQ(fileGetSize(file.c_str()), 1234);
  timespec times[2] = {{0, UTIME_OMIT}, {1'614'834'367, 500'000'000}}; // 2021-03-04T05:06:07.5Z
  ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
  EXPECT_EQ(fileGetTime(file.c_str()), makeTicks(2021, 3, 4, 5, 6, 7) + ticksPerSecond / 2);
}

TEST(FileSystem, ReplacesCopiesMovesAndDeletes) {
  TempDir dir, other("/dev/shm"); // a file system of its own, which rename(2) cannot reach
  std::string content(200'000, 'c');
  std::string from = dir.write("from", content), to = dir.write("to", "old content");
  fileCopy(from.c_str(), to.c_str());
  EXPECT_EQ(TempDir::read(to), content);
  std::string renamed = dir.write("renamed", "x");
  fileRename(from.c_str(), renamed.c_str());
  EXPECT_FALSE(fs::exists(from));
  EXPECT_EQ(TempDir::read(renamed), content);
  std::string across = other.path("across");
  fileMove(renamed.c_str(), across.c_str());
  EXPECT_FALSE(fs::exists(renamed));
  EXPECT_EQ(TempDir::read(across), content);
  // Across file systems onto a directory the copy fails, and the source stays.
  fs::create_directory(other.path("d"));
  EXPECT_EQ(errorOf([&] { fileMove(to.c_str(), other.path("d").c_str()); }),
            "Cannot move file (from:" + to + " to:" + other.path("d") + "): " + hex(EISDIR));
  fileDelete(to.c_str());
  EXPECT_FALSE(fs::exists(to));
}

TEST(FileSystem, MakesDirectories) {
  TempDir dir;
  std::string sub = dir.path("sub"), deep = dir.path("a/b/c"), path = dir.path("private");
  EXPECT_TRUE(mkDir(sub.c_str()));
  EXPECT_FALSE(mkDir(sub.c_str()));
  fs::permissions(sub, fs::perms::owner_all);
  EXPECT_FALSE(mkDir(sub.c_str(), true, true));
  EXPECT_EQ(permissionsOf(sub), 0755u) << "permissions fixed";
  EXPECT_TRUE(mkDirPath(deep.c_str()));
  EXPECT_TRUE(fs::is_directory(deep));
  EXPECT_FALSE(mkDirPath((deep + "/../c/").c_str()));

  // A private directory is kept when it is one; anything else is moved aside.
  EXPECT_TRUE(makePrivateDir(path.c_str()));
  EXPECT_EQ(permissionsOf(path), 0700u);
  dir.write("private/keep", "kept");
  fs::permissions(path, fs::perms::owner_all | fs::perms::group_all | fs::perms::others_read);
  EXPECT_FALSE(makePrivateDir(path.c_str()));
  EXPECT_EQ(permissionsOf(path), 0700u);
  EXPECT_EQ(TempDir::read(path + "/keep"), "kept");
  std::string occupied = dir.write("occupied", "in the way"), link = dir.path("link");
  EXPECT_TRUE(makePrivateDir(occupied.c_str()));
  EXPECT_EQ(TempDir::read(occupied + ".bad"), "in the way");
  fs::create_directory_symlink(path, link);
  EXPECT_TRUE(makePrivateDir(link.c_str()));
  EXPECT_TRUE(fs::is_directory(link) && !fs::is_symlink(link));
  EXPECT_TRUE(fs::is_symlink(link + ".bad"));
}

TEST(FileSystem, WalksDirectories) {
  TempDir dir;
  std::string original = getCurrentDir().get(), top = dir.path();
  EXPECT_EQ(original, fs::current_path().string());
  // Longer than a first guess of a buffer for the current directory.
  std::string deep = dir.path(std::string(200, 'a') + "/" + std::string(200, 'b'));
  fs::create_directories(deep);
  chDir(deep.c_str());
  std::string now = getCurrentDir().get();
  chDir(original.c_str());
  EXPECT_EQ(now, fs::canonical(deep).string());

  dir.write("b.txt", "b");
  dir.write("sub/inner/target.cfg", "deep");
  fs::create_symlink(dir.path("sub"), dir.path("link"));
  std::set<std::string> names, directories;
  DirEnumerator entries(top.c_str());
  while (entries.next()) {
    names.insert(entries.path().get());
    if (entries.isDirectory())
      directories.insert(entries.name());
  }
  EXPECT_EQ(names, (std::set<std::string>{dir.path(std::string(200, 'a')), dir.path("b.txt"),
                                          dir.path("link"), dir.path("sub")}));
  EXPECT_EQ(directories, (std::set<std::string>{std::string(200, 'a'), "sub"}));
  EXPECT_EQ(std::string(findFileInTree(top.c_str(), "target.cfg").get()),
            dir.path("sub/inner/target.cfg"));
  EXPECT_TRUE(findFileInTree(top.c_str(), "inner").isNull()) << "only files count";

  auto unique = [&](const char* name, int tries) {
    return std::string(findUniqueName(top.c_str(), name, "(", ")", tries).get());
  };
  dir.write("b(1).txt", "");
  EXPECT_EQ(unique("new.txt", 100), dir.path("new.txt"));
  EXPECT_EQ(unique("b.txt", 100), dir.path("b(2).txt"));
  EXPECT_EQ(unique("a:b?.txt", 100), dir.path("a-b-.txt"));
  EXPECT_EQ(errorOf([&] { unique("b.txt", 2); }), "Too many files with same name");
}

} // namespace
} // namespace plat
