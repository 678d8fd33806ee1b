#include "ui/AutoHider.h"

#include "plat/TimerManager.h"

#include <algorithm>

namespace ui {

namespace {

// No step faster than this, however short the slide.
constexpr std::int32_t minStepMs = 20;

// Centred in `room`, but never pushed past the start of it.
std::int32_t centred(std::int32_t room, std::int32_t extent) {
  return std::max((room - extent) / 2, 0);
}

} // namespace

AutoHider::AutoHider(std::int32_t edge, std::int32_t revealSize, Callback* callback) noexcept
    : callback_(callback), edge_(edge), revealSize_(revealSize) {}

std::int32_t AutoHider::travel() {
  const rfb::Size size = widget_->getSize();
  const bool across = edge_ == EdgeLeft || edge_ == EdgeRight;
  return std::max((across ? size.width : size.height) - revealSize_, 1);
}

void AutoHider::reportState(bool sliding) {
  if (callback_)
    callback_->stateChanged(sliding, revealed_, this);
}

void AutoHider::slide(bool revealed, int milliseconds) {
  if (locked_)
    return;
  revealed_ = revealed;
  duration_ = milliseconds < 0 ? defaultDuration_ : milliseconds;
  hideDelayTimer_.stop();
  reportState(true);
  if (duration_ != 0) {
    // About one pixel a step.
    slideTimer_.start(std::max(duration_ / travel(), minStepMs));
    lastTick_ = plat::TimerManager::get().now();
    return;
  }
  slideTimer_.stop();
  position_ = revealed_ ? 0.0 : 1.0;
  applyPosition();
  reportState(false);
}

void AutoHider::showThenHide(int milliseconds) {
  slide(true, 0);
  hideDelayTimer_.start(milliseconds);
}

void AutoHider::applyPosition() {
  const rfb::Size size = widget_->getSize();
  const rfb::Size parent = widget_->getParentSize();
  const auto offset = static_cast<std::int32_t>(travel() * position_);
  const bool flipped = widget_->isFlipped();
  rfb::Point at;
  switch (edge_) {
  case EdgeLeft:
    at = {-offset, centred(parent.height, size.height)};
    break;
  case EdgeRight:
    at = {parent.width - size.width + offset, centred(parent.height, size.height)};
    break;
  default:
    if ((edge_ == EdgeTop) != flipped)
      at = {centred(parent.width, size.width), -offset};
    else
      at = {centred(parent.width, size.width), parent.height - size.height + offset};
    break;
  }
  widget_->setPosition(at);
}

bool AutoHider::timedOut(plat::Timer* timer) {
  if (timer == &hideDelayTimer_) {
    slide(false, -1);
    return false;
  }
  const plat::Ticks now = plat::TimerManager::get().now();
  const plat::Ticks elapsedMs = (now - lastTick_) / plat::ticksPerMillisecond;
  lastTick_ = now;
  const double step = static_cast<double>(elapsedMs) / std::max(duration_, 1);
  const double target = revealed_ ? 0.0 : 1.0;
  position_ = std::clamp(revealed_ ? position_ - step : position_ + step, 0.0, 1.0);
  applyPosition();
  if (position_ != target)
    return true;
  reportState(false);
  return false;
}

} // namespace ui
