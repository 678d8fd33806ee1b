// mui::QuitRequestsQt: the application loop runs turns of its own, never
// Qt's, so Qt's ways of ending an application would be lost on it: the quit
// event (the session manager's order at the end of the desktop session, or
// the platform terminating the application), the request to commit data
// before the session ends, the end of a Qt loop and the close of the last
// window. Each of them reaches the application loop's quit with code 0, as
// the platform's quit message does.
#pragma once

#include <QObject>

namespace mui {

class QuitRequestsQt : public QObject {
public:
  /// Watches the process's QGuiApplication from now on.
  QuitRequestsQt();
  ~QuitRequestsQt() override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace mui
