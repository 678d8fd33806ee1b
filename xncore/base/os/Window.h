// os::Window: a window of the platform's window system as the portable side
// sees it: where it stands on the screen, whether it shows and takes input,
// and the centring of one window on another. The toolkit's binding supplies
// the windows of its dialogs; portable code never makes one itself.
#pragma once

#include "plat/NonCopyable.h"
#include "rfb/Rect.h"

namespace os {

class Window : plat::NonCopyable {
public:
  virtual ~Window() = default;

  /// The outer rectangle, frame included, in screen coordinates.
  virtual rfb::Rect getRect() = 0;
  /// Moves the outer rectangle's top-left corner to `position` on the screen.
  virtual void setPos(rfb::Point position) = 0;
  /// Brings the window in front of the other windows of its kind, without activating it.
  virtual void raise() = 0;
  virtual bool isVisible() = 0;
  virtual bool isMinimised() = 0;
  virtual bool isMaximised() = 0;
  /// Whether the window takes the user's input.
  virtual void enable(bool enabled) = 0;
  virtual bool isEnabled() = 0;
  /// The part of the screen that holds this window and that windows may use,
  /// without panels and docks.
  virtual rfb::Rect workArea() = 0;

  /// Centres this window on `other` when that is visible and not minimised,
  /// else on the work area of this window's screen.
  void centreOn(Window* other);
};

} // namespace os
