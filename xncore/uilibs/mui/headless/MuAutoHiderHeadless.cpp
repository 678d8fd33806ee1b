#include "mui/headless/MuAutoHiderHeadless.h"

namespace mui {

namespace {

// The focus of the headless windows is the peers'; the move to the parent is
// only counted.
class CountingHiderWindow : public AutoHiderWindow {
public:
  CountingHiderWindow(int edge, int revealSize, ui::AutoHider::Callback* callback, int& count)
      : AutoHiderWindow(edge, revealSize, callback), count_(count) {}
  void focusParent() override { ++count_; }

private:
  int& count_;
};

} // namespace

MuAutoHiderHeadless::MuAutoHiderHeadless(const char* name, const Size* size, int edge,
                                         int revealSize, ui::AutoHider::Callback* callback)
    : MuAutoHiderDlgBase(name, size, callback) {
  attachHider(std::make_unique<CountingHiderWindow>(edge, revealSize, this, parentFocusCount_));
}

MuAutoHider* MuAutoHiderHeadless::make(const char* name, const Size* size, int edge, int revealSize,
                                       ui::AutoHider::Callback* callback) {
  return new MuAutoHiderHeadless(name, size, edge, revealSize, callback);
}

} // namespace mui
