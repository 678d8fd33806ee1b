#include "mui/qt/MuFrameQt.h"

#include "mui/qt/MuCommonQt.h"

#include <QFrame>
#include <QGroupBox>
#include <QPainter>

namespace mui {

namespace {

// A header's black line along the bottom edge, or a footer's line in the
// shadow colour along the top edge.
class EdgeLineQt : public QWidget {
public:
  EdgeLineQt(QWidget* parent, bool bottom) : QWidget(parent), bottom_(bottom) {}

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QColor colour = bottom_ ? QColor(Qt::black) : palette().color(QPalette::Dark);
    painter.fillRect(QRect(0, bottom_ ? height() - 1 : 0, width(), 1), colour);
  }

private:
  bool bottom_;
};

QWidget* makeWidget(MuFrame* frame, QWidget* parent) {
  switch (frame->frameType()) {
  case MuFrame::Titled: {
    const plat::String title = frame->shownTitle();
    return new QGroupBox(QString::fromUtf8(title.orEmpty()), parent);
  }
  case MuFrame::Bordered: {
    auto* box = new QFrame(parent);
    box->setFrameStyle(QFrame::Box | QFrame::Plain);
    box->setLineWidth(1);
    return box;
  }
  case MuFrame::Header:
  case MuFrame::Footer:
    return new EdgeLineQt(parent, frame->frameType() == MuFrame::Header);
  default:
    return new QWidget(parent);
  }
}

} // namespace

MuFrameQt::MuFrameQt(MuContainer* parent, const char* name, const char* title, int type)
    : MuFrame(parent, name, title, type) {
  MuCommonQt::Traits traits;
  traits.translateMouse = true;
  setCommon(std::make_unique<MuCommonQt>(
      this, makeWidget(this, MuCommonQt::parentWidgetFor(parent)), traits));
}

MuFrame* MuFrameQt::make(MuContainer* parent, const char* name, const char* title, int type) {
  return new MuFrameQt(parent, name, title, type);
}

} // namespace mui
