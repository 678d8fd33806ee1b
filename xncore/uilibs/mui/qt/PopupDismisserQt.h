// mui::PopupDismisserQt: feeds a PopupDismisser every mouse press of the
// application, as a thread's message hook would: it watches the presses on
// their way to the widget they land on, and swallows the ones that the
// dismisser says must not reach it.
#pragma once

#include "mui/PopupDismisser.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWidget>

namespace mui {

class PopupDismisserQt : public QObject {
public:
  /// `popup` is the popup's window; `owner` the owner's control, or null.
  PopupDismisserQt(PopupDismisser& dismisser, QWidget* popup, QWidget* owner);
  ~PopupDismisserQt() override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  PopupDismisser::Place placeOf(const QWidget* target) const;

  PopupDismisser& dismisser_;
  QPointer<QWidget> popup_;
  QPointer<QWidget> owner_;
  quint64 lastPress_ = 0;
  QPointF lastPosition_;
};

} // namespace mui
