#include "mui/qt/ListModelQt.h"

#include "mui/MuList.h"
#include "mui/Mui.h"
#include "mui/qt/MuiQt.h"
#include "mui/qt/PixelBufferQt.h"
#include "mui/qt/PixelImageQt.h"
#include "ui/NamedImage.h"

namespace mui {

ListModelQt::ListModelQt(MuList* list, QObject* parent)
    : QAbstractTableModel(parent), list_(list) {}

int ListModelQt::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListModelQt::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant ListModelQt::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  const int column = index.column();
  const bool image = list_->column(column).kind == MuList::ImageColumn;
  switch (role) {
  case Qt::DisplayRole:
    return image ? QVariant() : QVariant(QString::fromUtf8(list_->cell(row, column)));
  case Qt::DecorationRole: {
    const QIcon icon = image ? this->image(list_->cell(row, column)) : QIcon();
    return icon.isNull() ? QVariant() : QVariant(icon);
  }
  case Qt::ForegroundRole:
  case Qt::BackgroundRole:
  case Qt::FontRole: {
    MuStyle style;
    if (!list_->cellStyle(row, column, &style))
      return {};
    if (role == Qt::FontRole)
      return MuiQt::instance().font(style);
    const QColor colour = MuiQt::colour(role == Qt::ForegroundRole ? style.textColour.get()
                                                                   : style.backgroundColour.get());
    return colour.isValid() ? QVariant(colour) : QVariant();
  }
  default:
    return {};
  }
}

QIcon ListModelQt::image(const char* name) const {
  const QByteArray key(name);
  auto found = images_.constFind(key);
  if (found != images_.constEnd())
    return *found;
  QIcon icon;
  if (!key.isEmpty()) {
    const int side = Mui::metric(MetricListImageSize);
    // The cache of named images keeps the pixels for the whole run.
    const auto named = ui::getNamedImage(name, toDevicePixels({side, side}));
    QPixmap pixmap = QPixmap::fromImage(PixelBufferQt::wrap(*named));
    pixmap.setDevicePixelRatio(deviceRatio());
    // A selected row shows the image as it is, not tinted with the selection.
    if (!pixmap.isNull()) {
      icon.addPixmap(pixmap, QIcon::Normal);
      icon.addPixmap(pixmap, QIcon::Selected);
    }
  }
  images_.insert(key, icon);
  return icon;
}

QVariant ListModelQt::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= columns_)
    return {};
  return QString::fromUtf8(list_->column(section).title.orEmpty());
}

// Refused rows are not selectable for the view either, so it never marks them.
Qt::ItemFlags ListModelQt::flags(const QModelIndex& index) const {
  return list_->isSelectable(index.row()) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                          : Qt::ItemIsEnabled;
}

void ListModelQt::rowInserted(int row) {
  beginInsertRows(QModelIndex(), row, row);
  ++rows_;
  endInsertRows();
}

void ListModelQt::rowRemoved(int row) {
  if (row < 0) {
    beginResetModel();
    rows_ = 0;
    endResetModel();
    return;
  }
  beginRemoveRows(QModelIndex(), row, row);
  --rows_;
  endRemoveRows();
}

void ListModelQt::columnsChanged() {
  const int count = list_->columnCount();
  if (count <= columns_)
    return;
  beginInsertColumns(QModelIndex(), columns_, count - 1);
  columns_ = count;
  endInsertColumns();
}

void ListModelQt::rowChanged(int row) {
  if (rows_ == 0 || columns_ == 0)
    return;
  const int first = row < 0 ? 0 : row;
  const int last = row < 0 ? rows_ - 1 : row;
  emit dataChanged(index(first, 0), index(last, columns_ - 1));
}

} // namespace mui
