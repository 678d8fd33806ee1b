#include "mui/qt/MuLineQt.h"

#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuiQt.h"

#include <QFrame>
#include <QPainter>

namespace mui {

namespace {

// A coloured line: a band of the thickness across the middle, in the colour.
class ColourLineQt : public QFrame {
public:
  ColourLineQt(QWidget* parent, bool horizontal) : QFrame(parent), horizontal_(horizontal) {
    setFrameShape(horizontal ? QFrame::HLine : QFrame::VLine);
  }
  void setBand(int thickness, const QColor& colour) {
    thickness_ = thickness;
    colour_ = colour;
    update();
  }

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect band = horizontal_ ? QRect(0, (height() - thickness_) / 2, width(), thickness_)
                                   : QRect((width() - thickness_) / 2, 0, thickness_, height());
    painter.fillRect(band, colour_);
  }

private:
  bool horizontal_;
  int thickness_ = 1;
  QColor colour_;
};

QFrame* makeLine(QWidget* parent, bool horizontal, int type) {
  if (type != MuLine::Etched)
    return new ColourLineQt(parent, horizontal);
  auto* line = new QFrame(parent);
  line->setFrameShape(horizontal ? QFrame::HLine : QFrame::VLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

} // namespace

MuLineQt::MuLineQt(MuContainer* parent, const char* name, bool horizontal, int type, int thickness)
    : MuLine(parent, name, horizontal, type, thickness) {
  setCommon(std::make_unique<MuCommonQt>(
      this, makeLine(MuCommonQt::parentWidgetFor(parent), horizontal, type)));
  styleChanged();
}

MuLine* MuLineQt::make(MuContainer* parent, const char* name, bool horizontal, int type,
                       int thickness) {
  return new MuLineQt(parent, name, horizontal, type, thickness);
}

void MuLineQt::styleChanged() {
  MuLine::styleChanged();
  if (auto* band = dynamic_cast<ColourLineQt*>(MuCommonQt::of(this)->widget()))
    band->setBand(thickness(), MuiQt::colour(effectiveStyle().textColour.get(), "contentText"));
}

} // namespace mui
