#include "mui/qt/WindowQt.h"

#include <QGuiApplication>
#include <QScreen>

namespace mui {

namespace {

rfb::Rect fromQt(const QRect& rect) {
  return rfb::Rect::at({rect.x(), rect.y()}, {rect.width(), rect.height()});
}

} // namespace

QWidget* WindowQt::widgetOf(os::Window* window) {
  auto* qt = dynamic_cast<WindowQt*>(window);
  return qt ? qt->widget_.data() : nullptr;
}

rfb::Rect WindowQt::getRect() {
  return fromQt(widget_->frameGeometry());
}

// A top-level widget's position is that of its frame.
void WindowQt::setPos(rfb::Point position) {
  widget_->move(position.x, position.y);
}

void WindowQt::raise() {
  widget_->raise();
}

bool WindowQt::isVisible() {
  return widget_->isVisible();
}

bool WindowQt::isMinimised() {
  return widget_->isMinimized();
}

bool WindowQt::isMaximised() {
  return widget_->isMaximized();
}

void WindowQt::enable(bool enabled) {
  widget_->setEnabled(enabled);
}

bool WindowQt::isEnabled() {
  return widget_->isEnabled();
}

rfb::Rect WindowQt::workArea() {
  const QScreen* screen = widget_->screen() ? widget_->screen() : QGuiApplication::primaryScreen();
  return screen ? fromQt(screen->availableGeometry()) : getRect();
}

} // namespace mui
