// plat::File and the stream functions: opening in each mode, reading to the
// end, whole files and lines, ownership of streams, and failures with the
// system's text.

#include "plat/File.h"

#include "TempDir.h"

#include "plat/Exception.h"
#include "rdr/EndOfStream.h"

#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace plat {
namespace {

using test::TempDir;

std::string contentOf(const MBuf<unsigned char>& buffer) {
  return std::string(reinterpret_cast<const char*>(buffer.data()),
                     static_cast<std::size_t>(buffer.length()));
}

std::string libraryText(const std::string& what, int code) {
  return what + ": " + strerror(code) + " (" + std::to_string(code) + ")";
}

bool isOpenDescriptor(int fd) {
  return fcntl(fd, F_GETFD) != -1;
}

// A pipe whose reading end is a stream, filled with `content` and closed for writing.
FILE* pipeWith(const std::string& content) {
  int ends[2];
  EXPECT_EQ(pipe(ends), 0);
  EXPECT_EQ(write(ends[1], content.data(), content.size()), static_cast<ssize_t>(content.size()));
  close(ends[1]);
  return fdopen(ends[0], "rb");
}

template <class Action>
void expectMessage(Action action, const std::string& message) {
  try {
    action();
    ADD_FAILURE() << "no exception, expected " << message;
  } catch (const Exception& e) {
    EXPECT_EQ(e.what(), message);
  }
}

TEST(File, WritesAndReadsBack) {
  TempDir dir;
  std::string path = dir.path("data.bin");
  {
    File file(path.c_str(), fileModeWrite);
    file.write("hello, world", 12);
  }
  EXPECT_EQ(TempDir::read(path), "hello, world");

  File file(path.c_str(), fileModeRead);
  char buffer[8];
  EXPECT_EQ(file.read(buffer, 5), 5u);
  EXPECT_EQ(std::string(buffer, 5), "hello");
  EXPECT_EQ(file.read(buffer, sizeof buffer), 7u) << "a short read returns what there is";
  EXPECT_EQ(std::string(buffer, 7), ", world");
  EXPECT_EQ(file.read(buffer, 0), 0u);
  try {
    file.read(buffer, 1);
    FAIL() << "no end of stream";
  } catch (const rdr::EndOfStream& e) {
    EXPECT_STREQ(e.what(), "End of file");
    EXPECT_TRUE(e.isType("EndOfStream"));
  }
}

TEST(File, OpensInEachModeWithItsFlags) {
  TempDir dir;
  std::string path = dir.write("text", "hello");
  {
    File file(path.c_str(), fileModeUpdate);
    file.write("J", 1);
  }
  EXPECT_EQ(TempDir::read(path), "Jello");
  {
    File file(path.c_str(), fileModeWrite, fileFlagAppend);
    file.write("!", 1);
  }
  EXPECT_EQ(TempDir::read(path), "Jello!");
  {
    File file(path.c_str(), fileModeUpdate, fileFlagTruncate);
    file.write("new", 3);
  }
  EXPECT_EQ(TempDir::read(path), "new");
  { File file(path.c_str(), fileModeWrite); }
  EXPECT_EQ(TempDir::read(path), "");
  std::string missing = dir.path("missing");
  EXPECT_THROW(File(missing.c_str(), fileModeUpdate), SystemException)
      << "update without truncating wants an existing file";
  std::string created = dir.path("created");
  {
    File file(created.c_str(), fileModeUpdate, fileFlagAppend);
    file.write("a", 1);
  }
  EXPECT_EQ(TempDir::read(created), "a");
}

TEST(File, FailsToOpenWithThePath) {
  TempDir dir;
  std::string missing = dir.path("missing/file");
  try {
    File file(missing.c_str(), fileModeRead);
    FAIL() << "opened a missing file";
  } catch (const SystemException& e) {
    EXPECT_EQ(e.what(), "fileOpen(" + missing + "): " + strerror(ENOENT) + " (2)");
    EXPECT_EQ(e.code(), ENOENT);
  }
  File file;
  EXPECT_THROW(file.open(dir.path().c_str(), fileModeWrite), SystemException);
  EXPECT_FALSE(file.isOpen());
}

TEST(File, DashIsAStandardStreamThatIsNotOwned) {
  int in = fileno(stdin), out = fileno(stdout);
  bool inOpen = isOpenDescriptor(in), outOpen = isOpenDescriptor(out);
  {
    File reader("-", fileModeRead);
    EXPECT_EQ(reader.stream(), stdin);
    File writer("-", fileModeWrite, fileFlagTextMode);
    EXPECT_EQ(writer.stream(), stdout);
  }
  EXPECT_EQ(isOpenDescriptor(in), inOpen);
  EXPECT_EQ(isOpenDescriptor(out), outOpen);
  expectMessage([] { File file("-", fileModeUpdate); }, "Invalid mode for stdin/stdout");
}

TEST(File, ClosesOnlyStreamsItOwns) {
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
    EXPECT_EQ(file.stream(), borrowed);
  }
  EXPECT_TRUE(isOpenDescriptor(borrowedFd));
  fclose(borrowed);

  File file(path.c_str(), fileModeRead);
  int fd = fileno(file.stream());
  file.close();
  EXPECT_FALSE(file.isOpen());
  EXPECT_FALSE(isOpenDescriptor(fd));
}

TEST(File, ReportsAFailureToClose) {
  // /dev/full takes a byte into the buffer and refuses it when flushed.
  File file("/dev/full", fileModeWrite);
  file.write("x", 1);
  expectMessage([&] { file.close(); }, libraryText("fclose", ENOSPC));

  testing::internal::CaptureStderr();
  {
    File quiet("/dev/full", fileModeWrite);
    quiet.write("x", 1);
  }
  std::string reported = testing::internal::GetCapturedStderr();
  EXPECT_NE(reported.find("Error closing file"), std::string::npos) << reported;
  EXPECT_NE(reported.find(strerror(ENOSPC)), std::string::npos) << reported;

  testing::internal::CaptureStderr();
  {
    File silent("/dev/full", fileModeWrite);
    silent.setLogCloseFailure(false);
    silent.write("x", 1);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(File, ReportsWriteAndFlushFailures) {
  File file("/dev/full", fileModeWrite);
  file.setLogCloseFailure(false);
  std::string big(1 << 16, 'b');
  expectMessage([&] { file.write(big.data(), big.size()); },
                libraryText("writing to file failed", ENOSPC));
  File flushed("/dev/full", fileModeWrite);
  flushed.setLogCloseFailure(false);
  flushed.write("x", 1);
  expectMessage([&] { flushed.flush(); }, libraryText("fflush", ENOSPC));
}

TEST(FileReadAll, ReadsUpToTheLimit) {
  TempDir dir;
  std::string content = "0123456789";
  std::string path = dir.write("ten", content);
  File exact(path.c_str(), fileModeRead);
  EXPECT_EQ(contentOf(exact.readAll(10)), content);
  File over(path.c_str(), fileModeRead);
  expectMessage([&] { over.readAll(9); }, "Error: file is too large (10 > 9)");
}

TEST(FileReadAll, AnEmptyFileIsAnError) {
  TempDir dir;
  std::string path = dir.write("empty", "");
  File file(path.c_str(), fileModeRead);
  try {
    file.readAll(100);
    FAIL() << "no exception";
  } catch (const StdlibException& e) {
    EXPECT_EQ(std::string(e.what()).rfind("Reading from file failed: ", 0), 0u) << e.what();
  }
}

TEST(FileReadAll, ReadsStreamsOfUnknownSize) {
  std::string content(10'000, 'p');
  content[9'999] = 'q';
  File file;
  file.attach(pipeWith(content), true);
  EXPECT_EQ(fileStreamSize(file.stream()), -1);
  EXPECT_EQ(contentOf(file.readAll(20'000)), content);

  File small;
  small.attach(pipeWith(content), true);
  try {
    small.readAll(5'000);
    FAIL() << "no exception";
  } catch (const Exception& e) {
    EXPECT_EQ(std::string(e.what()).rfind("Error: file is too large (", 0), 0u) << e.what();
    EXPECT_NE(std::string(e.what()).find(" > 5000)"), std::string::npos) << e.what();
  }
}

TEST(FileReadLine, ReadsLinesOfAnyLength) {
  TempDir dir;
  std::string longLine(10'000, 'L');
  std::string path =
      dir.write("lines", "one\ntwo\n\n" + longLine + "\nbad \xff byte\nlast without newline");
  File file(path.c_str(), fileModeRead);
  std::vector<std::string> lines;
  DString line("stale");
  while (file.readLine(line))
    lines.push_back(line.get());
  EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "", longLine, "bad \xEF\xBF\xBD byte",
                                             "last without newline"}));
  EXPECT_FALSE(file.readLine(line));
  EXPECT_STREQ(line.get(), "");
}

TEST(FileReadLine, ReportsReadErrors) {
  TempDir dir;
  std::string path = dir.write("f", "x");
  File file(path.c_str(), fileModeWrite); // not readable
  DString line;
  try {
    file.readLine(line);
    FAIL() << "no exception";
  } catch (const SystemException& e) {
    EXPECT_EQ(e.what(), libraryText("Error reading from file", EBADF));
  }
}

TEST(FileStream, SeeksTellsAndTruncates) {
  TempDir dir;
  std::string path = dir.path("s");
  File file(path.c_str(), fileModeUpdate, fileFlagTruncate);
  std::string hundred(100, 'h');
  file.write(hundred.data(), hundred.size());
  EXPECT_EQ(fileTell(file.stream()), 100);
  fileSeek(file.stream(), 10, SEEK_SET);
  EXPECT_EQ(fileTell(file.stream()), 10);
  fileTruncate(file.stream(), 50);
  EXPECT_EQ(fileTell(file.stream()), 10) << "truncating keeps the position";
  EXPECT_EQ(fileGetSize(path.c_str()), 50);
  EXPECT_EQ(fileStreamSize(file.stream()), 50);
  fileSeek(file.stream(), -5, SEEK_END);
  EXPECT_EQ(fileTell(file.stream()), 45);
  fileTruncate(file.stream(), 3'000'000'000LL);
  EXPECT_EQ(fileGetSize(path.c_str()), 3'000'000'000LL) << "sizes beyond 32 bits";
}

TEST(FileStream, FailuresNameTheStep) {
  File piped;
  piped.attach(pipeWith("abc"), true);
  expectMessage([&] { fileSeek(piped.stream(), 1, SEEK_SET); }, libraryText("fileSeek", ESPIPE));
  expectMessage([&] { fileTell(piped.stream()); }, libraryText("fileTell", ESPIPE));
  expectMessage([&] { fileTruncate(piped.stream(), 0); },
                libraryText("fileTruncate(ftruncate)", EINVAL));

  File full("/dev/full", fileModeWrite);
  full.setLogCloseFailure(false);
  full.write("x", 1);
  expectMessage([&] { fileTruncate(full.stream(), 0); },
                libraryText("fileTruncate(fflush)", ENOSPC));
}

} // namespace
} // namespace plat
