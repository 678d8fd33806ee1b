#include "mui/headless/MuDialogHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/MuiHeadless.h"

namespace mui {

MuDialogHeadless::MuDialogHeadless(const char* name, const char* title, const Size* size, int style,
                                   MuDialog* parentDialog, os::Window* parentWindow)
    : MuDialog(name, size, style, parentDialog, parentWindow), title_(title ? title : "") {
  MuCommonHeadless::Traits traits;
  traits.startsVisible = false;
  auto peer = std::make_unique<MuCommonHeadless>(this, traits);
  window_ = std::make_unique<WindowHeadless>(peer.get());
  setCommon(std::move(peer));
  if (size)
    common()->setSize(*size);
}

MuDialog* MuDialogHeadless::make(const char* name, const char* title, const Size* size, int style,
                                 MuDialog* parentDialog, os::Window* parentWindow) {
  return new MuDialogHeadless(name, title, size, style, parentDialog, parentWindow);
}

void MuDialogHeadless::setTitle(const char* title) {
  MuCommonHeadless::of(this)->record(std::string("setTitle ") + (title ? title : ""));
  title_ = title ? title : "";
}

Size MuDialogHeadless::getDesktopSize() {
  return MuiHeadless::instance().desktopSize();
}

bool MuDialogHeadless::pressMouse(MuElement* element, Point position) {
  return mousePressed(element, position, getPosition().translate(position));
}

void MuDialogHeadless::dragMouseTo(Point position) {
  mouseMoved(position);
  mouseReleased();
}

bool MuDialogHeadless::pressOutside() {
  return (dialogStyle() & DismissOnOutsideClick) && dismisser().pressed(PopupDismisser::Elsewhere);
}

void MuDialogHeadless::captureMouse(bool capture) {
  MuCommonHeadless::of(this)->record(capture ? "captureMouse 1" : "captureMouse 0");
}

} // namespace mui
