#include "mui/qt/DialogWindowQt.h"

#include "mui/qt/EventGlueQt.h"
#include "mui/qt/KeysQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuDialogQt.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

namespace mui {

DialogWindowQt::DialogWindowQt(MuDialogQt* dialog, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), dialog_(dialog) {}

bool DialogWindowQt::event(QEvent* event) {
  if (dialog_) {
    switch (event->type()) {
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate: {
      const bool active = event->type() == QEvent::WindowActivate;
      callFromQt([this, active] { dialog_->activationChanged(active); });
      break;
    }
    case QEvent::UngrabMouse:
      callFromQt([this] { dialog_->mouseReleased(); });
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

namespace mui {

namespace {

Point screenPoint(const QMouseEvent* event) {
  const QPoint global = event->globalPosition().toPoint();
  return {global.x(), global.y()};
}

} // namespace

void DialogWindowQt::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!dialog_ || !(dialog_->dialogStyle() & MuDialog::Border))
    return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DialogWindowQt::mousePressEvent(QMouseEvent* event) {
  bool taken = false;
  if (dialog_ && event->button() == Qt::LeftButton) {
    const QPoint position = event->position().toPoint();
    callFromQt([&] {
      MuElement* element = MuCommonQt::elementShowing(dialog_, childAt(position));
      taken = dialog_->mousePressed(element ? element : dialog_, {position.x(), position.y()},
                                    screenPoint(event));
    });
  }
  event->setAccepted(taken);
}

void DialogWindowQt::mouseMoveEvent(QMouseEvent* event) {
  if (dialog_ && dialog_->isDragging())
    callFromQt([&] { dialog_->mouseMoved(screenPoint(event)); });
  else
    event->ignore();
}

void DialogWindowQt::mouseReleaseEvent(QMouseEvent* event) {
  if (dialog_ && dialog_->isDragging() && event->button() == Qt::LeftButton)
    callFromQt([this] { dialog_->mouseReleased(); });
  else
    event->ignore();
}

} // namespace mui
