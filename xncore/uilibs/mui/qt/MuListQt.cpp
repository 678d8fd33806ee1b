#include "mui/qt/MuListQt.h"

#include "mui/Mui.h"
#include "mui/qt/ListModelQt.h"
#include "mui/qt/ListViewQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuiQt.h"

#include <QFontMetrics>
#include <QHeaderView>

namespace mui {

MuListQt::MuListQt(MuContainer* parent, const char* name, int listStyle, Callback* callback)
    : MuList(parent, name, listStyle, callback),
      view_(new ListViewQt(this, MuCommonQt::parentWidgetFor(parent))),
      model_(new ListModelQt(this, view_)) {
  view_->setModel(model_);
  view_->setHeaderHidden(!(listStyle & ShowHeaders));
  const int imageSize = Mui::metric(MetricListImageSize);
  view_->setIconSize(QSize(imageSize, imageSize));
  setCommon(std::make_unique<MuCommonQt>(this, view_.data()));
}

MuListQt::~MuListQt() {
  if (view_)
    view_->forgetList();
}

MuList* MuListQt::make(MuContainer* parent, const char* name, int listStyle, Callback* callback) {
  return new MuListQt(parent, name, listStyle, callback);
}

// A list that paints its selection itself shows it the same with and without the focus.
void MuListQt::styleChanged() {
  MuList::styleChanged();
  if (!(listStyle() & PaintsSelection))
    return;
  QPalette palette = view_->palette();
  for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
    palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
  view_->setPalette(palette);
}

int MuListQt::textWidth(const char* text) {
  return QFontMetrics(MuiQt::instance().font(effectiveStyle()))
      .horizontalAdvance(QString::fromUtf8(text));
}

int MuListQt::clientWidth() {
  if (view_->isVisible())
    return view_->viewport()->width();
  return view_->width() - 2 * view_->frameWidth();
}

void MuListQt::showSelection(int row) {
  QItemSelectionModel* selection = view_->selectionModel();
  if (row < 0) {
    selection->clear();
    return;
  }
  selection->setCurrentIndex(model_->index(row, 0),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void MuListQt::rowInserted(int row) {
  model_->rowInserted(row);
}

void MuListQt::rowRemoved(int row) {
  model_->rowRemoved(row);
}

void MuListQt::applyColumnWidths(const std::vector<int>& widths) {
  model_->columnsChanged();
  QHeaderView* header = view_->header();
  for (std::size_t i = 0; i < widths.size(); ++i)
    header->resizeSection(static_cast<int>(i), widths[i]);
}

void MuListQt::ensureVisible(int row) {
  if (row >= 0)
    view_->scrollTo(model_->index(row, 0));
}

void MuListQt::invalidateRow(int row) {
  model_->rowChanged(row);
}

} // namespace mui
