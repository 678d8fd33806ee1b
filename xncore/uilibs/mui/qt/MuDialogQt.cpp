#include "mui/qt/MuDialogQt.h"

#include "mui/qt/DialogWindowQt.h"
#include "mui/qt/MuButtonQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/PopupDismisserQt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScreen>

namespace mui {

namespace {

Qt::WindowFlags windowFlags(int style) {
  if (style & MuDialog::Popup)
    return Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
           Qt::WindowDoesNotAcceptFocus;
  Qt::WindowFlags flags =
      Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
  // A child of the desktop has no caption, like a window without one.
  if (style & (MuDialog::NoCaption | MuDialog::DesktopChild))
    flags = Qt::Window | Qt::FramelessWindowHint;
  if (!(style & MuDialog::DisableClose))
    flags |= Qt::WindowCloseButtonHint;
  if (!(style & MuDialog::NoHide))
    flags |= Qt::WindowMinimizeButtonHint;
  if (!(style & (MuDialog::FixedSize | MuDialog::AbsFixedSize)))
    flags |= Qt::WindowMaximizeButtonHint;
  if (style & MuDialog::Topmost)
    flags |= Qt::WindowStaysOnTopHint;
  return flags;
}

} // namespace

MuDialogQt::MuDialogQt(const char* name, const char* title, const Size* size, int style,
                       MuDialog* parentDialog, os::Window* parentWindow)
    : MuDialog(name, size, style, parentDialog, parentWindow),
      // A child of the desktop belongs to no other window.
      window_(new DialogWindowQt(
          this, (style & DesktopChild) ? nullptr : WindowQt::widgetOf(this->parentWindow()),
          windowFlags(style))),
      windowService_(window_.data()) {
  applyModality();
  window_->setAttribute(Qt::WA_ShowWithoutActivating,
                        (style & (MuDialog::Popup | MuDialog::KeepForeground)) != 0);
  if (style & MuDialog::DismissOnOutsideClick)
    new PopupDismisserQt(dismisser(), window_, nullptr);
  window_->setWindowTitle(QString::fromUtf8(title ? title : ""));
  setCommon(std::make_unique<MuCommonQt>(this, window_.data()));
  if (size)
    setSize(*size);
}

MuDialogQt::~MuDialogQt() {
  if (window_)
    window_->forgetDialog();
}

MuDialog* MuDialogQt::make(const char* name, const char* title, const Size* size, int style,
                           MuDialog* parentDialog, os::Window* parentWindow) {
  return new MuDialogQt(name, title, size, style, parentDialog, parentWindow);
}

QWidget* MuDialogQt::window() const {
  return window_.data();
}

// Without a parent Qt's window modality would block every window.
void MuDialogQt::applyModality() {
  window_->setWindowModality(isModal() && window_->parentWidget() ? Qt::WindowModal : Qt::NonModal);
}

void MuDialogQt::setParentWindow(os::Window* window) {
  MuDialog::setParentWindow(window);
  if (dialogStyle() & DesktopChild)
    return;
  const bool shown = window_->isVisible();
  window_->setParent(WindowQt::widgetOf(window), window_->windowFlags());
  applyModality();
  if (shown)
    window_->show();
}

void MuDialogQt::setClipboardText(const char* text) {
  QGuiApplication::clipboard()->setText(QString::fromUtf8(text ? text : ""));
}

void MuDialogQt::setTitle(const char* title) {
  window_->setWindowTitle(QString::fromUtf8(title ? title : ""));
}

Size MuDialogQt::getDesktopSize() {
  const QScreen* screen = window_->screen() ? window_->screen() : QGuiApplication::primaryScreen();
  const QSize size = screen ? screen->availableGeometry().size() : QSize();
  return {size.width(), size.height()};
}

Size MuDialogQt::getWindowSize() {
  const QSize size = window_->frameGeometry().size();
  return {size.width(), size.height()};
}

void MuDialogQt::setMinimumSize(Size size) {
  window_->setMinimumSize(size.width, size.height);
}

Point MuDialogQt::getScreenPosition() {
  const QPoint origin = window_->mapToGlobal(QPoint(0, 0));
  return {origin.x(), origin.y()};
}

// A fixed-size dialog cannot be dragged to another size by the user.
void MuDialogQt::setSize(Size size) {
  if (dialogStyle() & (FixedSize | AbsFixedSize))
    window_->setFixedSize(std::max(0, size.width), std::max(0, size.height));
  MuDialog::setSize(size);
}

void MuDialogQt::layout() {
  laidOut_ = getSize();
  MuDialog::layout();
}

void MuDialogQt::relayout() {
  MuDialog::relayout();
  window_->update();
}

void MuDialogQt::setButton(int which, MuElement* element) {
  MuDialog::setButton(which, element);
  if (which != DefaultButton)
    return;
  if (defaultWidget_)
    defaultWidget_->setDefault(false);
  auto* button = dynamic_cast<MuButtonQt*>(element);
  defaultWidget_ = button ? button->widget() : nullptr;
  if (defaultWidget_)
    defaultWidget_->setDefault(true);
}

void MuDialogQt::showWindow(bool show) {
  MuDialog::showWindow(show);
  if (!show)
    return;
  window_->raise();
  if (!(dialogStyle() & (Popup | KeepForeground)))
    window_->activateWindow();
}

void MuDialogQt::captureMouse(bool capture) {
  if (capture)
    window_->grabMouse(Qt::SizeAllCursor);
  else
    window_->releaseMouse();
}

} // namespace mui
