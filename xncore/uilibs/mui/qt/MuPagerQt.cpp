#include "mui/qt/MuPagerQt.h"

#include "mui/Mui.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MuCommonQt.h"

#include <QPainter>
#include <QStyleOptionTabWidgetFrame>

namespace mui {

namespace {

/// The pager's widget: it draws the tab pane's frame behind the pages.
class PagerWidgetQt : public QWidget {
public:
  explicit PagerWidgetQt(QWidget* parent) : QWidget(parent) {}

  QTabBar* tabBar = nullptr;
  QRect pane;

protected:
  void paintEvent(QPaintEvent*) override {
    if (!tabBar)
      return;
    QStyleOptionTabWidgetFrame option;
    option.initFrom(this);
    option.rect = pane;
    option.shape = QTabBar::RoundedNorth;
    option.tabBarSize = tabBar->size();
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    option.selectedTabRect = tabBar->tabRect(tabBar->currentIndex());
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameTabWidget, &option, &painter, this);
  }
};

} // namespace

MuPagerQt::MuPagerQt(MuContainer* parent, const char* name, int pagerStyle)
    : MuPager(parent, name, pagerStyle) {
  auto* widget = new PagerWidgetQt(MuCommonQt::parentWidgetFor(parent));
  if (hasTabs()) {
    tabBar_ = new QTabBar(widget);
    tabBar_->setDrawBase(false);
    tabBar_->setExpanding(false);
    tabBar_->setUsesScrollButtons(true);
    widget->tabBar = tabBar_;
    QObject::connect(tabBar_, &QTabBar::currentChanged, tabBar_, [this](int index) {
      if (!changingTabs_ && index >= 0 && index != current())
        callFromQt([this, index] { select(index); });
    });
  }
  setCommon(std::make_unique<MuCommonQt>(this, widget));
}

MuPager* MuPagerQt::make(MuContainer* parent, const char* name, int pagerStyle) {
  return new MuPagerQt(parent, name, pagerStyle);
}

template <class Change>
void MuPagerQt::changeTabs(Change&& change) {
  if (!tabBar_)
    return;
  changingTabs_ = true;
  change();
  changingTabs_ = false;
}

void MuPagerQt::pageAdded(int index) {
  changeTabs([&] { tabBar_->insertTab(index, QString::fromUtf8(caption(index))); });
}

void MuPagerQt::pageRemoved(int index) {
  changeTabs([&] { tabBar_->removeTab(index); });
}

void MuPagerQt::titleChanged(int index) {
  changeTabs([&] { tabBar_->setTabText(index, QString::fromUtf8(caption(index))); });
}

void MuPagerQt::currentChanged() {
  changeTabs([&] { tabBar_->setCurrentIndex(current()); });
}

QRect MuPagerQt::paneRect() const {
  const QWidget* widget = MuCommonQt::of(const_cast<MuPagerQt*>(this))->widget();
  const int overlap = widget->style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, widget);
  const int top = std::max(0, tabBar_->height() - overlap);
  return QRect(0, top, widget->width(), widget->height() - top);
}

Rect MuPagerQt::pageArea() {
  QWidget* widget = MuCommonQt::of(this)->widget();
  if (!tabBar_)
    return Rect::at({0, 0}, getSize());
  const int frame = widget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, widget);
  const int inset = frame + Mui::metric(MetricFrameMargin);
  const QRect area = paneRect().adjusted(inset, inset, -inset, -inset);
  return Rect(area.left(), area.top(), area.right() + 1, area.bottom() + 1);
}

void MuPagerQt::layout() {
  if (tabBar_) {
    QWidget* widget = MuCommonQt::of(this)->widget();
    const QSize wanted = tabBar_->sizeHint();
    tabBar_->setGeometry(0, 0, std::min(wanted.width(), widget->width()), wanted.height());
    static_cast<PagerWidgetQt*>(widget)->pane = paneRect();
    widget->update();
  }
  MuPager::layout();
}

} // namespace mui
