// mui::MuPopupMenu: a menu that pops up at the pointer, at a point of the
// screen, or under an element, aligned at its left edge, its middle or its
// right edge. It is no element: whoever made it owns it. While it lives,
// its menu can be found by its name, for a driver of the forms.
#pragma once

#include "mui/Geometry.h"
#include "plat/NonCopyable.h"
#include "plat/String.h"
#include "ui/Menu.h"

namespace os {
class Window;
}

namespace mui {

class MuElement;

class MuPopupMenu : plat::NonCopyable {
public:
  /// Where the menu's edge stands at the point it pops up at.
  enum Align : int { AlignLeft = 0, AlignCentre = 1, AlignRight = 2 };

  /// A hidden menu, without items, in front of `parentWindow` (may be null).
  static MuPopupMenu* create(const char* name, os::Window* parentWindow);
  /// The menu of the popup menu called `name` now alive, or null.
  static ui::Menu* findMenu(const char* name);

  virtual ~MuPopupMenu();
  virtual ui::Menu* getMenu();
  virtual void showAtCursor();
  /// At `screen`, aligned at its left edge.
  virtual void showAt(Point screen);
  /// Under `element`, its `align` edge at the element's left, middle or right.
  virtual void showAtElement(MuElement* element, int align);

  const char* name() const noexcept { return name_.orEmpty(); }
  os::Window* parentWindow() const noexcept { return parentWindow_; }

protected:
  MuPopupMenu(const char* name, os::Window* parentWindow);

  /// Binding: where the pointer is on the screen.
  virtual Point cursorPosition() = 0;
  /// Binding: shows the menu's items with the `align` edge at `screen`.
  virtual void popUp(Point screen, int align) = 0;

private:
  plat::String name_;
  os::Window* parentWindow_;
  ui::Menu menu_;
};

using MuPopupMenuFactory = MuPopupMenu* (*)(const char* name, os::Window* parentWindow);
extern MuPopupMenuFactory muPopupMenuFactory;

} // namespace mui
