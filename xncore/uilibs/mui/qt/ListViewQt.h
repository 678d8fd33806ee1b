// mui::ListViewQt: the QTreeView of a MuListQt, flat and in rows. The list
// does its own keyboard and mouse handling: the view passes keys and the
// presses on rows to the list and never changes its selection by itself.
#pragma once

#include <QTreeView>

namespace mui {

class MuList;

class ListViewQt : public QTreeView {
public:
  ListViewQt(MuList* list, QWidget* parent);

  void forgetList() noexcept { list_ = nullptr; }

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;

private:
  /// The row under `event`, -1 below the rows.
  int rowAt(const QMouseEvent* event) const;

  MuList* list_;
};

} // namespace mui
