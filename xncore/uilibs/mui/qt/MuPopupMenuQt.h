// mui::MuPopupMenuQt: the popup menu of the Qt binding, a QMenu filled from
// the menu's items each time it pops up. It doesn't block: the item the
// user chooses reaches the menu's callback from the application loop.
#pragma once

#include "mui/MuPopupMenu.h"

#include <QMenu>
#include <QPointer>

namespace mui {

class MuPopupMenuQt : public MuPopupMenu {
public:
  static MuPopupMenu* make(const char* name, os::Window* parentWindow);
  ~MuPopupMenuQt() override;

  QMenu* menu() const noexcept { return menu_; }

protected:
  Point cursorPosition() override;
  void popUp(Point screen, int align) override;

private:
  MuPopupMenuQt(const char* name, os::Window* parentWindow);
  void fill();

  QPointer<QMenu> menu_;
};

} // namespace mui
