// mui::AutoHiderWindow: a ui::AutoHider that moves the window of a panel on
// its parent window through the platform's window service, and the rule of
// the pointer: coming over the panel slides it into view, moving on over the
// parent's client area slides it away. A binding makes the panel's window a
// child of the parent's, tells the parent's client size, moves the keyboard
// focus, and feeds the pointer's moves in.
#pragma once

#include "ui/AutoHider.h"

namespace os {
class Window;
}

namespace mui {

class AutoHiderWindow : public ui::AutoHider, public ui::AutoHider::Widget {
public:
  /// Where the pointer moved: over the panel or a child of it, or over the
  /// parent's client area or a child of the parent.
  enum Place : int { OverPanel = 0, OverParent = 1 };

  AutoHiderWindow(int edge, int revealSize, ui::AutoHider::Callback* callback) noexcept;

  /// The panel's window; never null.
  void setWindow(os::Window* window);
  /// Puts the panel on `parent` and places it; null takes it off. An
  /// unchanged parent does nothing.
  void setParent(os::Window* parent);
  os::Window* window() const noexcept { return win_; }
  os::Window* parent() const noexcept { return parent_; }

  /// The pointer moved over `place`; ignored until both windows are set.
  void pointerMoved(Place place);
  /// Gives the keyboard focus to the parent window, away from the panel.
  virtual void focusParent() {}

  void setPosition(rfb::Point position) override;
  rfb::Size getSize() override;
  rfb::Size getParentSize() override;
  bool isFlipped() override { return false; }

protected:
  /// Binding: makes the panel's window a child of `parent`, or of none.
  virtual void reparent(os::Window* /*parent*/) {}
  /// Binding: the client size of `parent`; its outer size unless told otherwise.
  virtual rfb::Size clientSize(os::Window* parent);

private:
  os::Window* win_ = nullptr;
  os::Window* parent_ = nullptr;
};

} // namespace mui
