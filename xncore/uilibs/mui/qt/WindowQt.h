// mui::WindowQt: the system's window service on Qt, for the top-level widget
// of a dialog. The frame and the screen's work area are Qt's; a disabled
// window takes no input.
#pragma once

#include "os/Window.h"

#include <QPointer>
#include <QWidget>

namespace mui {

class WindowQt : public os::Window {
public:
  explicit WindowQt(QWidget* widget) noexcept : widget_(widget) {}

  /// The widget of `window` when it is a window of this binding, else null.
  static QWidget* widgetOf(os::Window* window);

  rfb::Rect getRect() override;
  void setPos(rfb::Point position) override;
  void raise() override;
  bool isVisible() override;
  bool isMinimised() override;
  bool isMaximised() override;
  void enable(bool enabled) override;
  bool isEnabled() override;
  rfb::Rect workArea() override;

private:
  QPointer<QWidget> widget_;
};

} // namespace mui
