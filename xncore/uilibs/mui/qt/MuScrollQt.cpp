#include "mui/qt/MuScrollQt.h"

#include "mui/Mui.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MuCommonQt.h"

#include <QScrollBar>
#include <QStyle>

namespace mui {

namespace {

// A line of a scroll bar, in units.
constexpr int lineUnits = 30;

} // namespace

/// Places the child again whenever the user or the program scrolls.
class MuScrollQt::Area : public QAbstractScrollArea {
public:
  Area(MuScrollQt* scroll, QWidget* parent) : QAbstractScrollArea(parent), scroll_(scroll) {}

  void forgetScroll() noexcept { scroll_ = nullptr; }
  /// Changes of the bars that the layout itself makes place nothing.
  bool settingBars = false;

protected:
  void scrollContentsBy(int, int) override {
    if (scroll_ && !settingBars)
      callFromQt([this] { scroll_->layout(); });
  }

private:
  MuScrollQt* scroll_;
};

MuScrollQt::MuScrollQt(MuContainer* parent, const char* name, int scrollStyle)
    : MuScroll(parent, name, scrollStyle) {
  auto* area = new Area(this, MuCommonQt::parentWidgetFor(parent));
  area_ = area;
  area->setFrameShape((scrollStyle & ThinBorder) ? QFrame::StyledPanel : QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // A scroll holds part of a form, which stands on the window's background;
  // Qt's scroll areas paint the background of a text field.
  area->viewport()->setBackgroundRole(QPalette::Window);
  auto peer = std::make_unique<MuCommonQt>(this, area);
  peer->setChildArea(area->viewport());
  setCommon(std::move(peer));
}

MuScrollQt::~MuScrollQt() {
  if (area_)
    static_cast<Area*>(area_.data())->forgetScroll();
}

MuScroll* MuScrollQt::make(MuContainer* parent, const char* name, int scrollStyle) {
  return new MuScrollQt(parent, name, scrollStyle);
}

Point MuScrollQt::getScrollPosition() {
  return {area_->horizontalScrollBar()->value(), area_->verticalScrollBar()->value()};
}

void MuScrollQt::setScrollPosition(Point position) {
  auto* area = static_cast<Area*>(area_.data());
  area->settingBars = true;
  area->horizontalScrollBar()->setValue(position.x);
  area->verticalScrollBar()->setValue(position.y);
  area->settingBars = false;
}

Size MuScrollQt::borderSize() {
  const int frame = area_->frameWidth();
  return {frame, frame};
}

int MuScrollQt::horizontalBarHeight() {
  return area_->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area_);
}

int MuScrollQt::verticalBarWidth() {
  return horizontalBarHeight();
}

void MuScrollQt::setBars(bool horizontal, bool vertical, Size content, Size available) {
  auto* area = static_cast<Area*>(area_.data());
  area->settingBars = true;
  area->setHorizontalScrollBarPolicy(horizontal ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  area->setVerticalScrollBarPolicy(vertical ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  const int line = Mui::toPixels(lineUnits);
  const auto setRange = [line](QScrollBar* bar, bool shown, int contentExtent, int page) {
    bar->setRange(0, shown ? std::max(0, contentExtent - page) : 0);
    bar->setPageStep(page);
    bar->setSingleStep(line);
  };
  setRange(area->horizontalScrollBar(), horizontal, content.width, available.width);
  setRange(area->verticalScrollBar(), vertical, content.height, available.height);
  area->settingBars = false;
}

} // namespace mui
