#include "mui/qt/MarkupViewQt.h"

#include "mui/MuText.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MarkupMetricsQt.h"
#include "mui/qt/MuiQt.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace mui {

namespace {

QRect toQRect(const Rect& rect) {
  return QRect(rect.tl.x, rect.tl.y, rect.width(), rect.height());
}

} // namespace

MarkupViewQt::MarkupViewQt(MuText* element, QWidget* parent) : QWidget(parent), element_(element) {
  setMouseTracking(true);
}

void MarkupViewQt::setMarkup(const char* markup) {
  markup_ = markup ? markup : "";
  valid_ = false;
  focused_ = -1;
  update();
}

void MarkupViewQt::setTextColour(const QColor& colour) {
  textColour_ = colour;
  update();
}

// A hidden widget hears of a new size only when it is shown, so the width is
// compared rather than waited for.
const MarkupRuns& MarkupViewQt::laidOut() {
  if (!valid_ || laidOutWidth_ != width()) {
    MarkupMetricsQt metrics;
    runs_ = layOutMarkup(markup_.c_str(), width(), metrics);
    valid_ = true;
    laidOutWidth_ = width();
    focused_ = -1;
  }
  return runs_;
}

// Fonts follow the density and the palette the desktop, so both lay out anew.
void MarkupViewQt::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
    valid_ = false;
  QWidget::changeEvent(event);
}

void MarkupViewQt::paintEvent(QPaintEvent*) {
  const MarkupRuns& laid = laidOut();
  QPainter painter(this);
  const QColor disabled = palette().color(QPalette::Disabled, QPalette::WindowText);
  for (const MarkupRun& run : laid.runs) {
    QColor colour = MuiQt::colour(run.style.colour_.get());
    if (!colour.isValid())
      colour = run.href.isNull() ? textColour_ : palette().color(QPalette::Link);
    painter.setFont(MarkupMetricsQt::fontOf(run.style));
    painter.setPen(isEnabled() ? colour : disabled);
    painter.drawText(toQRect(run.rect), Qt::TextSingleLine | Qt::AlignLeft | Qt::AlignTop,
                     QString::fromStdString(run.text));
  }
  if (hasFocus() && focused_ >= 0 && focused_ < static_cast<int>(laid.runs.size())) {
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = toQRect(laid.runs[static_cast<std::size_t>(focused_)].rect);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
}

int MarkupViewQt::linkAt(QPoint point) {
  const MarkupRuns& laid = laidOut();
  const int run = laid.runAt({point.x(), point.y()});
  return run >= 0 && !laid.runs[static_cast<std::size_t>(run)].href.isNull() ? run : -1;
}

void MarkupViewQt::mouseMoveEvent(QMouseEvent* event) {
  if (linkAt(event->position().toPoint()) >= 0)
    setCursor(Qt::PointingHandCursor);
  else
    unsetCursor();
  QWidget::mouseMoveEvent(event);
}

void MarkupViewQt::mouseReleaseEvent(QMouseEvent* event) {
  const int run = event->button() == Qt::LeftButton ? linkAt(event->position().toPoint()) : -1;
  if (run >= 0)
    follow(run);
  else
    QWidget::mouseReleaseEvent(event);
}

int MarkupViewQt::linkAfter(int from, int step) {
  const MarkupRuns& laid = laidOut();
  for (int run = from + step; run >= 0 && run < static_cast<int>(laid.runs.size()); run += step) {
    if (!laid.runs[static_cast<std::size_t>(run)].href.isNull())
      return run;
  }
  return -1;
}

void MarkupViewQt::focusLink(int run) {
  focused_ = run;
  update();
}

void MarkupViewQt::keyPressEvent(QKeyEvent* event) {
  int step = 0;
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
  case Qt::Key_Space:
    if (focused_ >= 0) {
      follow(focused_);
      return;
    }
    break;
  case Qt::Key_Right:
  case Qt::Key_Down:
    step = 1;
    break;
  case Qt::Key_Left:
  case Qt::Key_Up:
    step = -1;
    break;
  default:
    break;
  }
  if (step != 0 && focused_ >= 0) {
    if (const int run = linkAfter(focused_, step); run >= 0) {
      focusLink(run);
      return;
    }
  }
  QWidget::keyPressEvent(event);
}

void MarkupViewQt::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  const int count = static_cast<int>(laidOut().runs.size());
  if (event->reason() == Qt::TabFocusReason)
    focusLink(linkAfter(-1, 1));
  else if (event->reason() == Qt::BacktabFocusReason)
    focusLink(linkAfter(count, -1));
  else
    focusLink(-1);
}

void MarkupViewQt::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  focusLink(-1);
}

bool MarkupViewQt::focusNextPrevChild(bool next) {
  if (hasFocus() && focused_ >= 0) {
    if (const int run = linkAfter(focused_, next ? 1 : -1); run >= 0) {
      focusLink(run);
      return true;
    }
  }
  return QWidget::focusNextPrevChild(next);
}

// The target is copied first: the callback may give the element a new text.
void MarkupViewQt::follow(int run) {
  const plat::String href = laidOut().runs[static_cast<std::size_t>(run)].href;
  callFromQt([this, &href] { element_->followLink(href.get()); });
}

} // namespace mui
