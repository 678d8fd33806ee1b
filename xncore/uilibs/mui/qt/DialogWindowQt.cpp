#include "mui/qt/DialogWindowQt.h"

#include "mui/qt/EventGlueQt.h"
#include "mui/qt/KeysQt.h"
#include "mui/qt/MuDialogQt.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QResizeEvent>

namespace mui {

DialogWindowQt::DialogWindowQt(MuDialogQt* dialog, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), dialog_(dialog) {}

bool DialogWindowQt::event(QEvent* event) {
  if (dialog_) {
    switch (event->type()) {
    case QEvent::WindowActivate:
      callFromQt([this] { dialog_->notify(dialog_, EventWindowActive); });
      break;
    case QEvent::WindowDeactivate:
      callFromQt([this] { dialog_->notify(dialog_, EventWindowInactive); });
      break;
    case QEvent::ThemeChange:
    case QEvent::ApplicationPaletteChange:
      callFromQt([this] {
        dialog_->styleChanged();
        dialog_->notify(dialog_, EventThemeChanged);
      });
      break;
    default:
      break;
    }
  }
  return QWidget::event(event);
}

// The dialog hides itself when it agrees to close; Qt must not do it for it.
void DialogWindowQt::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (dialog_ && !(dialog_->dialogStyle() & MuDialog::DisableClose))
    callFromQt([this] { dialog_->userClose(); });
}

void DialogWindowQt::keyPressEvent(QKeyEvent* event) {
  bool handled = false;
  const Qt::KeyboardModifiers modifiers = event->modifiers();
  if (dialog_ && (modifiers == Qt::NoModifier || modifiers == Qt::KeypadModifier)) {
    const int keysym = keysymFromQt(event);
    callFromQt([&] { handled = dialog_ && dialog_->activateByKey(keysym); });
  }
  if (!handled)
    QWidget::keyPressEvent(event);
}

// A size that the layout did not make (the user dragged the frame) is laid out anew.
void DialogWindowQt::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!dialog_)
    return;
  const Size size{event->size().width(), event->size().height()};
  if (size != dialog_->laidOutSize())
    callFromQt([this] { dialog_->layout(); });
}

} // namespace mui
