#include "os/Window.h"

namespace os {

void Window::centreOn(Window* other) {
  const rfb::Rect area =
      other && other->isVisible() && !other->isMinimised() ? other->getRect() : workArea();
  const rfb::Size size = getRect().size();
  setPos(
      {area.tl.x + (area.width() - size.width) / 2, area.tl.y + (area.height() - size.height) / 2});
}

} // namespace os
