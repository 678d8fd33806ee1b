#include "mui/headless/MuPopupMenuHeadless.h"

namespace mui {

MuPopupMenu* MuPopupMenuHeadless::make(const char* name, os::Window* parentWindow) {
  return new MuPopupMenuHeadless(name, parentWindow);
}

void MuPopupMenuHeadless::popUp(Point screen, int align) {
  at_ = screen;
  align_ = align;
  shown_ = true;
}

bool MuPopupMenuHeadless::choose(int id) {
  if (!shown_)
    return false;
  shown_ = false;
  return getMenu()->choose(id);
}

} // namespace mui
