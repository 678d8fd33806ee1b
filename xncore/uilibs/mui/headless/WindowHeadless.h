// mui::WindowHeadless: the window of a headless dialog, kept in the dialog's
// peer: its place and size are the peer's, and the screen is the headless
// desktop. Tests read what a modal showing did to a parent through it.
#pragma once

#include "os/Window.h"

namespace mui {

class MuCommonHeadless;

class WindowHeadless : public os::Window {
public:
  explicit WindowHeadless(MuCommonHeadless* peer) noexcept : peer_(peer) {}

  rfb::Rect getRect() override;
  void setPos(rfb::Point position) override;
  void raise() override;
  bool isVisible() override;
  bool isMinimised() override { return false; }
  bool isMaximised() override { return false; }
  void enable(bool enabled) override;
  bool isEnabled() override { return enabled_; }
  rfb::Rect workArea() override;

private:
  MuCommonHeadless* peer_;
  bool enabled_ = true;
};

} // namespace mui
