// The opener is xdg-open, found on PATH and started without a shell, so that
// no character of the address means anything to anyone but the opener. It
// runs in a session of its own with the default signal dispositions and no
// descriptor of ours beyond standard output and error, and a thread of its
// own waits for it so that it leaves no zombie behind.
#include "plat/LinkCbOpenUrl.h"

#include "plat/Exception.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

extern char** environ;

namespace plat {

namespace {

class SpawnSettings {
public:
  SpawnSettings() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes_);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    posix_spawnattr_setflags(&attributes_,
                             POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;
  ~SpawnSettings() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&actions_);
  }

  const posix_spawn_file_actions_t* actions() const { return &actions_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
  posix_spawn_file_actions_t actions_;
  posix_spawnattr_t attributes_;
};

void reap(pid_t child) {
  std::thread([child] {
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
  }).detach();
}

} // namespace

void LinkCbOpenUrl::linkClicked(const char* url) {
  if (!url)
    return;
  char program[] = "xdg-open";
  char* arguments[] = {program, const_cast<char*>(url), nullptr};
  SpawnSettings settings;
  pid_t child = 0;
  int error =
      posix_spawnp(&child, program, settings.actions(), settings.attributes(), arguments, environ);
  if (error != 0)
    throw SystemException("posix_spawnp(xdg-open)", error);
  reap(child);
}

} // namespace plat
