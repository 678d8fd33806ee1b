// io::FdHandler: who is told that a descriptor can be read or written, or that
// the machine's addresses changed. It registers with the thread's FdManager.
#pragma once

namespace io {

class FdHandler {
public:
  explicit FdHandler(int descriptor = -1) noexcept : fd(descriptor) {}
  virtual ~FdHandler() = default;

  virtual void readReady() {}
  virtual void writeReady() {}
  virtual void addressChanged() {}
  /// The manager is going away with this handler still added.
  virtual void fdManagerDestroyed() {}

  int fd;
};

} // namespace io
