#include "mui/qt/QuitRequestsQt.h"

#include "mui/qt/EventGlueQt.h"
#include "os/AppLoop.h"

#include <QEvent>
#include <QGuiApplication>

namespace mui {

namespace {

// Without a loop there is nothing to end, and Qt's own defaults stand.
void quitLoop() {
  if (os::AppLoop::instOrNull())
    callFromQt([] { os::AppLoop::quit(0); });
}

} // namespace

QuitRequestsQt::QuitRequestsQt() {
  auto* application = qGuiApp;
  application->installEventFilter(this);
  connect(application, &QGuiApplication::commitDataRequest, this, [] { quitLoop(); });
  connect(application, &QGuiApplication::lastWindowClosed, this, [] { quitLoop(); });
  connect(application, &QCoreApplication::aboutToQuit, this, [] { quitLoop(); });
}

QuitRequestsQt::~QuitRequestsQt() {
  qGuiApp->removeEventFilter(this);
}

bool QuitRequestsQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched != qGuiApp || event->type() != QEvent::Quit || !os::AppLoop::instOrNull())
    return false;
  quitLoop();
  return true;
}

} // namespace mui
