#include "mui/headless/WindowHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/MuiHeadless.h"

namespace mui {

rfb::Rect WindowHeadless::getRect() {
  return rfb::Rect::at(peer_->getPosition(), peer_->getSize());
}

void WindowHeadless::setPos(rfb::Point position) {
  peer_->setPosition(position);
}

void WindowHeadless::raise() {
  peer_->record("raise");
}

bool WindowHeadless::isVisible() {
  return peer_->isVisible();
}

void WindowHeadless::enable(bool enabled) {
  peer_->record(enabled ? "enableWindow 1" : "enableWindow 0");
  enabled_ = enabled;
}

rfb::Rect WindowHeadless::workArea() {
  return rfb::Rect::at({0, 0}, MuiHeadless::instance().desktopSize());
}

} // namespace mui
