// mui::MeasurePass: the span of one outermost layout or measure. Within a pass
// a container may remember what it measured, so that nested layouts measure
// each subtree a bounded number of times instead of once per path through the
// tree, which would grow exponentially with the depth of nesting. Anything
// that can change what an element measures while a pass runs (observer code,
// a change of visibility or of a layout's children) ends the pass's memory.
#pragma once

#include <cstdint>

namespace mui {

class MeasurePass {
public:
  MeasurePass() noexcept {
    if (depth_++ == 0)
      ++epoch_;
  }
  ~MeasurePass() { --depth_; }
  MeasurePass(const MeasurePass&) = delete;
  MeasurePass& operator=(const MeasurePass&) = delete;

  /// Identifies the present pass; remembered measures of another epoch are stale.
  static std::uint64_t epoch() noexcept { return epoch_; }
  /// Forgets what the present pass measured: the content may have changed.
  static void invalidate() noexcept { ++epoch_; }

private:
  static inline std::uint64_t epoch_ = 0;
  static inline int depth_ = 0;
};

/// A few measures of one element, kept for the pass in which they were made.
class MeasureMemo {
public:
  enum Axis : std::uint8_t { Width, Height };

  bool lookup(Axis axis, int argument, int* result) const noexcept {
    for (const Entry& entry : entries_) {
      if (entry.epoch == MeasurePass::epoch() && entry.axis == axis && entry.argument == argument) {
        *result = entry.result;
        return true;
      }
    }
    return false;
  }

  void store(Axis axis, int argument, int result) noexcept {
    entries_[next_] = {MeasurePass::epoch(), argument, result, axis};
    next_ = (next_ + 1) % entryCount;
  }

private:
  static constexpr int entryCount = 4;
  struct Entry {
    std::uint64_t epoch = 0;
    int argument = 0;
    int result = 0;
    Axis axis = Width;
  };
  Entry entries_[entryCount];
  int next_ = 0;
};

} // namespace mui
