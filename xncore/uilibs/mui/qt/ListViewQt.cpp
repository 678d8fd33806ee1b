#include "mui/qt/ListViewQt.h"

#include "mui/MuList.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/KeysQt.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

namespace mui {

ListViewQt::ListViewQt(MuList* list, QWidget* parent) : QTreeView(parent), list_(list) {
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSortingEnabled(false);
  setTextElideMode(Qt::ElideNone);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  header()->setSectionsClickable(false);
  header()->setMinimumSectionSize(0);
}

int ListViewQt::rowAt(const QMouseEvent* event) const {
  const QModelIndex index = indexAt(event->position().toPoint());
  return index.isValid() ? index.row() : -1;
}

// Keys with Ctrl or Alt are the dialog's shortcuts and mnemonics.
void ListViewQt::keyPressEvent(QKeyEvent* event) {
  bool handled = false;
  if (list_ && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    const int keysym = keysymFromQt(event);
    callFromQt([&] { handled = list_->keyPressed(keysym); });
  }
  event->setAccepted(handled);
}

void ListViewQt::mousePressEvent(QMouseEvent* event) {
  setFocus(Qt::MouseFocusReason);
  if (list_ && event->button() == Qt::LeftButton) {
    const int row = rowAt(event);
    callFromQt([&] { list_->rowPressed(row); });
  }
  event->accept();
}

void ListViewQt::mouseDoubleClickEvent(QMouseEvent* event) {
  if (list_ && event->button() == Qt::LeftButton) {
    const int row = rowAt(event);
    callFromQt([&] { list_->rowDoubleClicked(row); });
  }
  event->accept();
}

// Dragging over the rows would select them the view's way.
void ListViewQt::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void ListViewQt::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

// The columns share the width that the rows show in, which the vertical
// scroll bar takes from when it comes or goes.
bool ListViewQt::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Resize && list_) {
    const auto* resize = static_cast<QResizeEvent*>(event);
    if (resize->size().width() != resize->oldSize().width())
      callFromQt([this] { list_->updateColumnWidths(); });
  }
  return QTreeView::viewportEvent(event);
}

} // namespace mui
