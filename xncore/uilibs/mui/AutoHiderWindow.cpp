#include "mui/AutoHiderWindow.h"

#include "os/Window.h"
#include "plat/Assertion.h"

namespace mui {

AutoHiderWindow::AutoHiderWindow(int edge, int revealSize,
                                 ui::AutoHider::Callback* callback) noexcept
    : ui::AutoHider(edge, revealSize, callback) {
  setWidget(this);
}

void AutoHiderWindow::setWindow(os::Window* window) {
  win_ = window;
  XN_ASSERT(win_);
}

void AutoHiderWindow::setParent(os::Window* parent) {
  if (parent == parent_)
    return;
  parent_ = parent;
  reparent(parent);
  if (parent_)
    applyPosition();
}

void AutoHiderWindow::pointerMoved(Place place) {
  if (!win_ || !parent_)
    return;
  // A pointer that leaves over the parent's frame or out of the parent
  // leaves the panel as it is.
  if (place == OverPanel && !isRevealed())
    slide(true);
  else if (place == OverParent && isRevealed())
    slide(false);
}

void AutoHiderWindow::setPosition(rfb::Point position) {
  win_->setPos(position);
}

rfb::Size AutoHiderWindow::getSize() {
  return win_->getRect().size();
}

rfb::Size AutoHiderWindow::getParentSize() {
  return parent_ ? clientSize(parent_) : rfb::Size();
}

rfb::Size AutoHiderWindow::clientSize(os::Window* parent) {
  return parent->getRect().size();
}

} // namespace mui
