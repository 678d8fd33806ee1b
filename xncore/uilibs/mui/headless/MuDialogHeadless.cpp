#include "mui/headless/MuDialogHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/MuiHeadless.h"

namespace mui {

MuDialogHeadless::MuDialogHeadless(const char* name, const char* title, const Size* size, int style,
                                   MuDialog* parentDialog, os::Window* parentWindow)
    : MuDialog(name, size, style, parentDialog, parentWindow), parentDialog_(parentDialog),
      title_(title ? title : "") {
  MuCommonHeadless::Traits traits;
  traits.startsVisible = false;
  setCommon(std::make_unique<MuCommonHeadless>(this, traits));
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

void MuDialogHeadless::centre() {
  Rect area = Rect::at({0, 0}, getDesktopSize());
  if (parentDialog_ && parentDialog_->isVisible())
    area = Rect::at(parentDialog_->getPosition(), parentDialog_->getSize());
  const Size size = getSize();
  MuElement::setPosition(
      {area.tl.x + (area.width() - size.width) / 2, area.tl.y + (area.height() - size.height) / 2});
}

} // namespace mui
