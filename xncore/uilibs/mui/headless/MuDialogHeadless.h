// mui::MuDialogHeadless: the dialog of the headless binding. Its window is a
// hidden peer with a title; it is centred on the headless desktop or on its
// parent dialog, and offers tests the user's side of a window: closing it
// and pressing keys in it.
#pragma once

#include "mui/MuDialog.h"

#include <string>

namespace mui {

class MuDialogHeadless : public MuDialog {
public:
  static MuDialog* make(const char* name, const char* title, const Size* size, int style,
                        MuDialog* parentDialog, os::Window* parentWindow);

  void setTitle(const char* title) override;
  Size getDesktopSize() override;

  const std::string& title() const noexcept { return title_; }
  /// The user closes the window with its close box.
  void closeByUser() { userClose(); }
  /// The user presses a key that no control of the dialog took.
  bool pressKey(int keysym) { return activateByKey(keysym); }

protected:
  void centre() override;

private:
  MuDialogHeadless(const char* name, const char* title, const Size* size, int style,
                   MuDialog* parentDialog, os::Window* parentWindow);

  MuDialog* parentDialog_;
  std::string title_;
};

} // namespace mui
