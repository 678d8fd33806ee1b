// mui::ListModelQt: the item model through which a QTreeView shows the rows
// of a MuList. It holds nothing of its own but the counts it has reported
// to the view and the images of the names it has shown: the list keeps the
// cells, and the model reads them on demand, so a list of any length costs
// the view no widget and no copy per row.
#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>

namespace mui {

class MuList;

class ListModelQt : public QAbstractTableModel {
public:
  ListModelQt(MuList* list, QObject* parent);

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// The list has a new row at `row`.
  void rowInserted(int row);
  /// The list lost the row at `row`, or all rows for -1.
  void rowRemoved(int row);
  /// The list has as many columns as it says now.
  void columnsChanged();
  /// The cells of `row` changed, of every row for -1.
  void rowChanged(int row);

private:
  /// The named image at the list's image size; a null icon for an empty
  /// name or an image that can't be found. Each name is loaded once.
  QIcon image(const char* name) const;

  MuList* list_;
  mutable QHash<QByteArray, QIcon> images_;
  int rows_ = 0;
  int columns_ = 0;
};

} // namespace mui
