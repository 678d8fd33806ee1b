#include "mui/qt/MuSplitterQt.h"

#include "mui/qt/MuCommonQt.h"

#include <QPainter>
#include <QWidget>

namespace mui {

namespace {

/// Paints the separators of its splitter: in the shadow colour, or for a
/// lined one in the window colour with a shadow line down the middle.
class SplitterWidgetQt : public QWidget {
public:
  SplitterWidgetQt(MuSplitter* splitter, QWidget* parent) : QWidget(parent), splitter_(splitter) {}

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const bool sideBySide = splitter_->orientation() == MuSplitter::SideBySide;
    const bool lined = splitter_->separatorStyle() == MuSplitter::Lined;
    const QColor shadow = palette().color(QPalette::Mid);
    for (int i = 0; i + 1 < splitter_->childCount(); ++i) {
      const int thickness = splitter_->separatorThickness(i);
      if (thickness == 0)
        continue;
      const int at = splitter_->separatorPosition(i);
      const QRect band =
          sideBySide ? QRect(at, 0, thickness, height()) : QRect(0, at, width(), thickness);
      painter.fillRect(band, lined ? palette().color(QPalette::Window) : shadow);
      if (lined) {
        const QRect line = sideBySide ? QRect(at + thickness / 2, 0, 1, height())
                                      : QRect(0, at + thickness / 2, width(), 1);
        painter.fillRect(line, shadow);
      }
    }
  }

private:
  MuSplitter* splitter_;
};

} // namespace

MuSplitterQt::MuSplitterQt(MuContainer* parent, const char* name, int orientation,
                           int separatorStyle, bool fixed)
    : MuSplitter(parent, name, orientation, separatorStyle, fixed) {
  MuCommonQt::Traits traits;
  traits.translateMouse = true;
  setCommon(std::make_unique<MuCommonQt>(
      this, new SplitterWidgetQt(this, MuCommonQt::parentWidgetFor(parent)), traits));
}

MuSplitter* MuSplitterQt::make(MuContainer* parent, const char* name, int orientation,
                               int separatorStyle, bool fixed) {
  return new MuSplitterQt(parent, name, orientation, separatorStyle, fixed);
}

Qt::CursorShape MuSplitterQt::resizeCursor() const {
  return orientation() == SideBySide ? Qt::SplitHCursor : Qt::SplitVCursor;
}

void MuSplitterQt::layout() {
  MuSplitter::layout();
  MuCommonQt::of(this)->widget()->update();
}

// A pane's widget shows its parent's cursor unless it has its own.
bool MuSplitterQt::mouseEvent(const xnutil::MouseEvent& event) {
  if (event.type == xnutil::MouseEvent::Leave && !isDragging())
    MuCommonQt::of(this)->widget()->unsetCursor();
  return MuSplitter::mouseEvent(event);
}

void MuSplitterQt::beginDrag() {
  MuCommonQt::of(this)->widget()->grabMouse(resizeCursor());
}

void MuSplitterQt::endDrag() {
  MuCommonQt::of(this)->widget()->releaseMouse();
}

void MuSplitterQt::hover(Point) {
  QWidget* widget = MuCommonQt::of(this)->widget();
  if (hoverIndex() >= 0)
    widget->setCursor(resizeCursor());
  else
    widget->unsetCursor();
}

} // namespace mui
