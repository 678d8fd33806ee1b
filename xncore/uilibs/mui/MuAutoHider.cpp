#include "mui/MuAutoHider.h"

#include "plat/Assertion.h"

namespace mui {

MuAutoHiderFactory muAutoHiderFactory = nullptr;

MuAutoHider* MuAutoHider::create(const char* name, const Size* size, int edge, int revealSize,
                                 ui::AutoHider::Callback* callback) {
  XN_ASSERT(muAutoHiderFactory);
  return muAutoHiderFactory(name, size, edge, revealSize, callback);
}

void MuAutoHider::stateChanged(bool sliding, bool revealed, ui::AutoHider* hider) {
  if (callback_)
    callback_->stateChanged(sliding, revealed, hider);
}

void MuAutoHider::setBackgroundColour(const char* name) {
  getDialog()->setBackgroundColour(name);
}

void MuAutoHider::addObserver(MuObserver* observer, bool add) {
  if (add)
    getDialog()->addObserver(observer);
  else
    getDialog()->removeObserver(observer);
}

void MuAutoHider::relayout() {
  getDialog()->relayout();
}

void MuAutoHider::setButton(int, MuElement*) {}

void MuAutoHider::setMouseDownCallback(MuDialog::MouseDownCallback*) {}

os::Window* MuAutoHider::getWindow() {
  return nullptr;
}

} // namespace mui
