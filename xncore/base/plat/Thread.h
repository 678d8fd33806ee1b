// plat::Thread: a native thread with a fixed state machine and a log line on
// the source "Threading" for each step. A thread is made suspended and runs
// once started; its work is the virtual run(), which by default calls its
// Runnable. Any thread may start, join, terminate or detach it; those steps
// are serialised by the object's lock.
//
//   Created --start--> Started --run ends--> Stopped --join--> Joined
//   Created --join--> (never runs) Joined
//   a thread that this class did not start is Native; it cannot be joined.
#pragma once

#include "plat/Event.h"
#include "plat/NativeThread.h"
#include "plat/String.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace plat {

class Thread : NonCopyable {
public:
  class Runnable {
  public:
    virtual ~Runnable() = default;
    virtual void run(Thread* thread) = 0;
  };

  enum State : std::int32_t { Created, Started, Stopped, Joined, Native };

  /// `runnable` may be null when a derived class overrides run().
  explicit Thread(const char* name, Runnable* runnable = nullptr);
  /// Joins without a limit first.
  virtual ~Thread();

  /// The thread's work.
  virtual void run();
  /// Lets the thread delete itself when it ends; a thread that is not
  /// running is deleted at once.
  virtual void detach();

  /// The calling thread's object; for a thread that this class did not start,
  /// a Native one made on first use, which lives as long as the thread.
  static Thread* self();

  /// Lets a Created thread run; does nothing in any other state.
  void start();
  /// Waits until the thread has ended (`timeoutMs` negative: no limit); a
  /// thread that was never started never runs. False on time-out, and at
  /// once for a detached or Native thread.
  bool join(int timeoutMs = -1);
  /// Joins; on failure ends the thread by force and gives false.
  bool terminate(int timeoutMs);

  State state();
  const char* name() const noexcept { return name_.get(); }
  std::uint32_t id() const noexcept { return id_; }

private:
  friend class Condition;

  Thread(NativeThread native, std::uint32_t id);
  static void entry(void* thread);
  void execute();
  void finish();
  void abandonUnstarted();
  void reclaim();
  void log(int level, const char* word, const char* detail = nullptr);

  String name_;
  std::uint32_t id_ = 0;
  NativeThread native_ = 0;
  Runnable* runnable_ = nullptr;
  std::recursive_mutex lock_;
  // A Created thread waits on this until it is started or abandoned.
  std::condition_variable_any gate_;
  State state_;
  bool detached_ = false;
  bool abandoned_ = false;
  // Set as the native thread ends; joining waits for it.
  Event exited_;
  // Set to wake the thread from Condition::wait.
  Event sleepEvent_;
  Thread* nextWaiter_ = nullptr;
  Ticks kernelTime_ = 0;
  Ticks userTime_ = 0;
};

} // namespace plat
