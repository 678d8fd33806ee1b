#include "mui/qt/MuAutoHiderQt.h"

#include "mui/qt/EventGlueQt.h"
#include "mui/qt/WindowQt.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>
#include <optional>

namespace mui {

namespace {

// Moves the panel's widget in and out of the parent's widget.
class HiderWindowQt : public AutoHiderWindow {
public:
  using AutoHiderWindow::AutoHiderWindow;

  void focusParent() override {
    if (QWidget* host = WindowQt::widgetOf(parent()))
      host->setFocus(Qt::OtherFocusReason);
  }

protected:
  void reparent(os::Window* parent) override {
    QWidget* panel = WindowQt::widgetOf(window());
    if (!topLevelFlags_)
      topLevelFlags_ = panel->windowFlags();
    QWidget* host = WindowQt::widgetOf(parent);
    // A child widget has no frame of its own; it paints its background, which
    // a top-level window gets from the window system.
    panel->setParent(host, host ? Qt::Widget : *topLevelFlags_);
    panel->setAutoFillBackground(host != nullptr);
  }

  // The parent's widget is its client area; its frame is the window system's.
  rfb::Size clientSize(os::Window* parent) override {
    const QWidget* host = WindowQt::widgetOf(parent);
    return host ? rfb::Size(host->width(), host->height()) : AutoHiderWindow::clientSize(parent);
  }

private:
  std::optional<Qt::WindowFlags> topLevelFlags_;
};

bool within(const QWidget* target, const QWidget* area) {
  return target && area && (target == area || area->isAncestorOf(target));
}

// Sees every move of the pointer in the application on its way, and lets it go on.
class PointerWatcherQt : public QObject {
public:
  explicit PointerWatcherQt(AutoHiderWindow& hider) : hider_(hider) {
    qApp->installEventFilter(this);
  }
  ~PointerWatcherQt() override { qApp->removeEventFilter(this); }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::MouseMove && event->type() != QEvent::HoverMove)
      return false;
    const QWidget* panel = WindowQt::widgetOf(hider_.window());
    const QWidget* host = WindowQt::widgetOf(hider_.parent());
    const QWidget* target = targetOf(watched, event, host);
    if (within(target, panel))
      callFromQt([&] { hider_.pointerMoved(AutoHiderWindow::OverPanel); });
    else if (within(target, host))
      callFromQt([&] { hider_.pointerMoved(AutoHiderWindow::OverParent); });
    return false;
  }

private:
  // A widget sees a move only while it tracks the mouse or hovers; the
  // parent's native window sees every move, for the widget under the pointer.
  static const QWidget* targetOf(QObject* watched, QEvent* event, const QWidget* host) {
    if (watched->isWidgetType())
      return static_cast<const QWidget*>(watched);
    if (!host || !host->isWindow() || watched != static_cast<QObject*>(host->windowHandle()) ||
        event->type() != QEvent::MouseMove)
      return nullptr;
    const QPoint at =
        host->mapFromGlobal(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
    const QWidget* under = host->childAt(at);
    return under ? under : host;
  }

  AutoHiderWindow& hider_;
};

} // namespace

MuAutoHiderQt::MuAutoHiderQt(const char* name, const Size* size, int edge, int revealSize,
                             ui::AutoHider::Callback* callback)
    : MuAutoHiderDlgBase(name, size, callback) {
  attachHider(std::make_unique<HiderWindowQt>(edge, revealSize, this));
  pointerWatcher_ = std::make_unique<PointerWatcherQt>(*hiderWindow());
}

MuAutoHiderQt::~MuAutoHiderQt() = default;

MuAutoHider* MuAutoHiderQt::make(const char* name, const Size* size, int edge, int revealSize,
                                 ui::AutoHider::Callback* callback) {
  return new MuAutoHiderQt(name, size, edge, revealSize, callback);
}

QWidget* MuAutoHiderQt::panel() {
  return WindowQt::widgetOf(getWindow());
}

} // namespace mui
