#include "mui/qt/EventGlueQt.h"

#include "loc/Localize.h"
#include "os/AppInfo.h"
#include "plat/Exception.h"
#include "plat/LogSrc.h"
#include "ui/TextKeys.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace mui {

namespace {

plat::LogSrc vlog("MuiQt");
std::exception_ptr pending;

void showFailure(const plat::Exception& failure) {
  QString title = QString::fromUtf8(os::getDisplayName(true));
  if (title.isEmpty())
    title = QApplication::applicationDisplayName();
  QMessageBox box(QMessageBox::Warning, title, QString::fromUtf8(failure.what()), QMessageBox::Ok,
                  QApplication::activeWindow());
  // The button speaks the program's language, like the toolkit's own, which
  // show no icon either.
  QAbstractButton* ok = box.button(QMessageBox::Ok);
  ok->setText(QString::fromUtf8(XN_TEXT(textkey::ui_button_ok)));
  ok->setIcon(QIcon());
  box.exec();
}

} // namespace

void detail::reportFromQt(const std::exception_ptr& failure) noexcept {
  try {
    std::rethrow_exception(failure);
  } catch (const plat::Exception& e) {
    vlog.error("%s", e.what());
    try {
      showFailure(e);
    } catch (...) {
      // The message box is a courtesy; the log holds the failure.
    }
  } catch (...) {
    if (!pending)
      pending = failure;
  }
}

void rethrowFromQt() {
  if (pending)
    std::rethrow_exception(std::exchange(pending, nullptr));
}

} // namespace mui
