#include "mui/MuPopupMenu.h"

#include "mui/MuElement.h"
#include "plat/Assertion.h"

#include <map>
#include <string>

namespace mui {

MuPopupMenuFactory muPopupMenuFactory = nullptr;

namespace {

// The menus alive by name; a later menu of a name stands in for an earlier one.
std::multimap<std::string, ui::Menu*>& menusByName() {
  static std::multimap<std::string, ui::Menu*> menus;
  return menus;
}

} // namespace

MuPopupMenu::MuPopupMenu(const char* name, os::Window* parentWindow)
    : name_(name), parentWindow_(parentWindow) {
  menusByName().emplace(this->name(), &menu_);
}

MuPopupMenu::~MuPopupMenu() {
  auto& menus = menusByName();
  auto [first, last] = menus.equal_range(name());
  for (auto i = first; i != last; ++i) {
    if (i->second == &menu_) {
      menus.erase(i);
      break;
    }
  }
}

MuPopupMenu* MuPopupMenu::create(const char* name, os::Window* parentWindow) {
  XN_ASSERT(muPopupMenuFactory);
  return muPopupMenuFactory(name, parentWindow);
}

ui::Menu* MuPopupMenu::findMenu(const char* name) {
  auto& menus = menusByName();
  auto [first, last] = menus.equal_range(name ? name : "");
  return first == last ? nullptr : std::prev(last)->second;
}

ui::Menu* MuPopupMenu::getMenu() {
  return &menu_;
}

void MuPopupMenu::showAtCursor() {
  popUp(cursorPosition(), AlignLeft);
}

void MuPopupMenu::showAt(Point screen) {
  popUp(screen, AlignLeft);
}

void MuPopupMenu::showAtElement(MuElement* element, int align) {
  const Point origin = element->getScreenPosition();
  const Size size = element->getSize();
  popUp({origin.x + size.width * align / 2, origin.y + size.height}, align);
}

} // namespace mui
