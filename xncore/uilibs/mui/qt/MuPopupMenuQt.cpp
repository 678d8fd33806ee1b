#include "mui/qt/MuPopupMenuQt.h"

#include "mui/qt/EventGlueQt.h"
#include "mui/qt/WindowQt.h"

#include <QCursor>

namespace mui {

MuPopupMenuQt::MuPopupMenuQt(const char* name, os::Window* parentWindow)
    : MuPopupMenu(name, parentWindow), menu_(new QMenu(WindowQt::widgetOf(parentWindow))) {
  menu_->setObjectName(QString::fromUtf8(this->name()));
  QObject::connect(menu_, &QMenu::triggered, menu_, [this](QAction* action) {
    const int id = action->data().toInt();
    callFromQt([this, id] { getMenu()->choose(id); });
  });
}

MuPopupMenuQt::~MuPopupMenuQt() {
  delete menu_.data();
}

MuPopupMenu* MuPopupMenuQt::make(const char* name, os::Window* parentWindow) {
  return new MuPopupMenuQt(name, parentWindow);
}

Point MuPopupMenuQt::cursorPosition() {
  const QPoint at = QCursor::pos();
  return {at.x(), at.y()};
}

void MuPopupMenuQt::fill() {
  menu_->clear();
  for (const ui::Menu::Item& item : getMenu()->items()) {
    if (item.isSeparator()) {
      menu_->addSeparator();
      continue;
    }
    QAction* action = menu_->addAction(QString::fromUtf8(item.text.orEmpty()));
    action->setData(item.id);
    action->setEnabled(item.enabled);
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
  }
}

void MuPopupMenuQt::popUp(Point screen, int align) {
  fill();
  const int width = menu_->sizeHint().width();
  menu_->popup(QPoint(screen.x - width * align / 2, screen.y));
}

} // namespace mui
