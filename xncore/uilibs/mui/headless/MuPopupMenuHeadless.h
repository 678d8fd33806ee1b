// mui::MuPopupMenuHeadless: the popup menu of the headless binding. It keeps
// where and how it was shown, has a pointer that tests place, and lets tests
// choose an item or dismiss the menu as the user would.
#pragma once

#include "mui/MuPopupMenu.h"

namespace mui {

class MuPopupMenuHeadless : public MuPopupMenu {
public:
  static MuPopupMenu* make(const char* name, os::Window* parentWindow);

  bool isShown() const noexcept { return shown_; }
  Point shownAt() const noexcept { return at_; }
  int shownAlign() const noexcept { return align_; }
  void setCursor(Point screen) noexcept { cursor_ = screen; }
  /// The user chooses the item `id` of the shown menu, which closes; false
  /// when the menu isn't shown or the item can't be chosen.
  bool choose(int id);
  /// The user closes the menu without choosing.
  void dismiss() noexcept { shown_ = false; }

protected:
  Point cursorPosition() override { return cursor_; }
  void popUp(Point screen, int align) override;

private:
  using MuPopupMenu::MuPopupMenu;

  Point cursor_;
  Point at_;
  int align_ = AlignLeft;
  bool shown_ = false;
};

} // namespace mui
