#include "plat/LogDestFile.h"

#include "plat/Clock.h"
#include "plat/Exception.h"
#include "plat/FileTree.h"
#include "plat/IsoTime.h"
#include "plat/LogParameters.h"
#include "plat/LogPlatform.h"
#include "plat/LogRotation.h"
#include "plat/Path.h"
#include "plat/PathExpand.h"
#include "plat/StringUtils.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace plat {

namespace {

constexpr int bannerWidth = 79;

std::atomic<bool> redirectStderr{false};

struct Banner {
  std::mutex lock;
  String text;
};

// Never destroyed, since destinations may still write during the
// destruction of static objects.
Banner& banner() {
  static Banner* const shared = new Banner();
  return *shared;
}

const char* colourCode(int level) noexcept {
  return level < 6 ? "31;1" : level < 11 ? "31" : level < 31 ? "36" : "0";
}

bool terminalWantsColour(std::FILE* stream) {
  const char* term = std::getenv("TERM");
  return stream && streamIsTerminal(stream) && term &&
         (std::strstr(term, "xterm") || std::strstr(term, "ansi") || std::strstr(term, "color"));
}

// Follows "LogDir" and "LogFile" into the path of the destination "file".
class LogDestFileMgr : public ParameterChangedCallback {
public:
  explicit LogDestFileMgr(LogDestFile& dest) : dest_(dest) {
    logFileParameter.addCallback(this);
    logDirParameter.addCallback(this);
  }

  void paramChanged(ConfigParameter*, int) override {
    if (enabled_)
      dest_.setPath(logFilePath().get());
  }

  void enable(bool enable) {
    enabled_ = enable;
    if (enable)
      paramChanged(nullptr, priorityDefault);
    else
      dest_.setPath(nullptr);
  }

private:
  LogDestFile& dest_;
  bool enabled_ = false;
};

std::unique_ptr<LogDestFileMgr>& fileManager() {
  static std::unique_ptr<LogDestFileMgr> manager;
  return manager;
}

} // namespace

LogDestFile::LogDestFile(const char* name, const char* appName, std::FILE* stream)
    : LogDest(name), appName_(appName), hostName_(computerName()), processId_(currentProcessId()),
      givenStream_(stream), useColour_(terminalWantsColour(stream)), available_(stream != nullptr) {
  // A failure to close is reported here, on standard error, and never logged,
  // which could come back to this destination.
  file_.setLogCloseFailure(false);
  if (stream)
    file_.attach(stream, false);
}

LogDestFile::~LogDestFile() {
  std::lock_guard<std::mutex> hold(lock_);
  closeFile();
}

void LogDestFile::write(int level, const char* sourceName, const char* text) {
  std::function<void()> onFull;
  {
    std::lock_guard<std::mutex> hold(lock_);
    if (closed_ || (!file_.isOpen() && !openFile()))
      return;
    std::FILE* out = file_.stream();
    if (!bannerDone_)
      writeBanner(out);
    if (useColour_)
      std::fprintf(out, "\033[%sm", colourCode(level));
    Ticks now = timeNow();
    if (compactLogParameter) {
      formatLocalClockTime(timeText_, now);
      std::fprintf(out, "%s %s: %s\n", timeText_.get(), sourceName, text);
    } else {
      formatIsoUtc(timeText_, now, true);
      std::fprintf(out, "<%d> %s %s %s[%lld]: %s: %s\n", 8 + logSeverity(level), timeText_.get(),
                   hostName_.get(), appName_.get(), static_cast<long long>(processId_), sourceName,
                   text);
    }
    if (useColour_)
      std::fputs("\033[0m", out);
    std::fflush(out);
    if (maxSize_ <= 0 || fileStreamSize(out) < maxSize_)
      return;
    closed_ = true;
    closeFile();
    onFull = onFull_;
  }
  // Outside the lock, so that the callback may log.
  if (onFull)
    onFull();
}

void LogDestFile::setPath(const char* path) {
  std::lock_guard<std::mutex> hold(lock_);
  available_.store(givenStream_ || (path && *path), std::memory_order_relaxed);
  if (compare(path_.get(), path) == 0)
    return;
  closeFile();
  path_ = String(path);
  bannerDone_ = false;
}

void LogDestFile::setMaxSize(std::int64_t bytes) {
  std::lock_guard<std::mutex> hold(lock_);
  maxSize_ = bytes;
  closed_ = false;
}

void LogDestFile::setOnFull(std::function<void()> onFull) {
  std::lock_guard<std::mutex> hold(lock_);
  onFull_ = std::move(onFull);
}

bool LogDestFile::openFile() {
  if (givenStream_) {
    file_.attach(givenStream_, false);
    return true;
  }
  if (path_.isNull() || !*path_.get())
    return false;
  try {
    if (std::strcmp(path_.get(), "-") != 0) {
      mkDirPath(pathDirName(path_.get()).get());
      rotateLogFile(path_.get(), logKeepDaysParameter, timeNow());
    }
    file_.open(path_.get(), fileModeWrite, fileFlagTextMode);
  } catch (const Exception&) {
    // The message is lost; the next one tries again.
    return false;
  }
  if (redirectStderr.load(std::memory_order_relaxed))
    redirectStderrTo(file_.stream());
  return true;
}

void LogDestFile::writeBanner(std::FILE* out) {
  String text;
  {
    std::lock_guard<std::mutex> hold(banner().lock);
    text = banner().text;
  }
  // A banner set after the first line still heads the rest of the file.
  if (text.isNull())
    return;
  std::fprintf(out, "%s\n", wrapText(text.get(), bannerWidth, 0).get());
  bannerDone_ = true;
}

void LogDestFile::closeFile() noexcept {
  try {
    file_.close();
  } catch (const Exception& failure) {
    if (*failure.type())
      std::fprintf(stderr, "Error closing log file: [%s] %s\n", failure.type(), failure.what());
    else
      std::fprintf(stderr, "Error closing log file: %s\n", failure.what());
  }
}

void initLogDestStderr(const char* appName) {
  static LogDestFile standardError("stderr", appName, stderr);
}

void initLogDestFile(const char* appName, bool enable) {
  static LogDestFile file("file", appName, nullptr);
  if (!fileManager())
    fileManager() = std::make_unique<LogDestFileMgr>(file);
  enableLogFile(enable);
}

void enableLogFile(bool enable) {
  if (fileManager())
    fileManager()->enable(enable);
}

void setLogRedirectStderr(bool redirect) {
  redirectStderr.store(redirect, std::memory_order_relaxed);
}

void setLogBanner(const char* text) {
  std::lock_guard<std::mutex> hold(banner().lock);
  banner().text = String(text);
}

String logFilePath() {
  String dir = pathExpand(logDirParameter.getValueString().get());
  String file = pathExpand(logFileParameter.getValueString().get());
  if (pathIsAbsolute(file.get()))
    return file;
  return pathJoin(dir.get(), file.get());
}

} // namespace plat
