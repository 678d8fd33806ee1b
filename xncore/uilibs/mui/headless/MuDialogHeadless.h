// mui::MuDialogHeadless: the dialog of the headless binding. Its window is a
// hidden peer with a title, standing on the headless desktop, and it offers
// tests the user's side of a window: closing it, pressing keys in it,
// dragging it by a press on an element, activating it elsewhere and pressing
// the mouse outside it.
#pragma once

#include "mui/MuDialog.h"
#include "mui/headless/WindowHeadless.h"

#include <memory>
#include <string>

namespace mui {

class MuDialogHeadless : public MuDialog {
public:
  static MuDialog* make(const char* name, const char* title, const Size* size, int style,
                        MuDialog* parentDialog, os::Window* parentWindow);

  void setTitle(const char* title) override;
  Size getDesktopSize() override;
  os::Window* getWindow() override { return window_.get(); }

  const std::string& title() const noexcept { return title_; }
  /// The user closes the window with its close box.
  void closeByUser() { userClose(); }
  /// The user presses a key that no control of the dialog took.
  bool pressKey(int keysym) { return activateByKey(keysym); }
  /// The user presses the left button on `element` at `position` of the client area.
  bool pressMouse(MuElement* element, Point position);
  /// The pointer moves to `position` of the screen, then the button goes up.
  void dragMouseTo(Point position);
  /// The window gains or loses the activation.
  void setActive(bool active) { activationChanged(active); }
  /// The user presses a mouse button outside the window; true when the press
  /// was swallowed. Only a DismissOnOutsideClick dialog watches such presses.
  bool pressOutside();

protected:
  void captureMouse(bool capture) override;

private:
  MuDialogHeadless(const char* name, const char* title, const Size* size, int style,
                   MuDialog* parentDialog, os::Window* parentWindow);

  std::unique_ptr<WindowHeadless> window_;
  std::string title_;
};

} // namespace mui
