#include "mui/qt/PopupDismisserQt.h"

#include "mui/qt/EventGlueQt.h"

#include <QApplication>
#include <QMouseEvent>

namespace mui {

namespace {

bool within(const QWidget* target, const QWidget* area) {
  return target && area && (target == area || area->isAncestorOf(target));
}

} // namespace

PopupDismisserQt::PopupDismisserQt(PopupDismisser& dismisser, QWidget* popup, QWidget* owner)
    : QObject(popup), dismisser_(dismisser), popup_(popup), owner_(owner) {
  qApp->installEventFilter(this);
}

PopupDismisserQt::~PopupDismisserQt() {
  qApp->removeEventFilter(this);
}

PopupDismisser::Place PopupDismisserQt::placeOf(const QWidget* target) const {
  if (within(target, popup_))
    return PopupDismisser::InPopup;
  return within(target, owner_) ? PopupDismisser::OnOwner : PopupDismisser::Elsewhere;
}

bool PopupDismisserQt::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
  case QEvent::NonClientAreaMouseButtonPress:
    break;
  default:
    return false;
  }
  // Each press passes here once at its window, then again for each widget
  // it is handed to; the window's pass is the one that counts.
  // A press goes first to the widget under it, then, while none accepts it,
  // to each parent widget in turn; the first delivery is the one that counts.
  const auto* press = static_cast<QMouseEvent*>(event);
  if (!watched->isWidgetType() || !popup_ || !popup_->isVisible() ||
      (press->timestamp() == lastPress_ && press->globalPosition() == lastPosition_))
    return false;
  lastPress_ = press->timestamp();
  lastPosition_ = press->globalPosition();
  const PopupDismisser::Place place = placeOf(static_cast<QWidget*>(watched));
  bool swallow = false;
  callFromQt([&] { swallow = dismisser_.pressed(place); });
  return swallow;
}

} // namespace mui
