#include "mui/qt/MuCommonQt.h"

#include "mui/MuContainer.h"
#include "mui/MuDialog.h"
#include "mui/MuScroll.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MuiQt.h"
#include "mui/qt/TextMeasureQt.h"
#include "xnutil/MouseCallback.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QTextDocument>

namespace mui {

namespace {

// Tips wider than this wrap, as the platform's tool tips do.
constexpr int toolTipWidth = 300;
constexpr int toolTipShowMs = 30000;

MuElement* findByWidget(MuElement* element, const QWidget* widget) {
  if (MuCommonQt* peer = MuCommonQt::of(element); peer && peer->widget() == widget)
    return element;
  if (auto* container = dynamic_cast<MuContainer*>(element)) {
    for (int i = 0, n = container->childCount(); i < n; ++i) {
      if (MuElement* found = findByWidget(container->getChild(i), widget))
        return found;
    }
  }
  return nullptr;
}

} // namespace

MuCommonQt::MuCommonQt(MuElement* element, QWidget* widget, Traits traits)
    : element_(element), widget_(widget), traits_(traits),
      text_(QString::fromUtf8(element->label() ? element->label() : "")) {
  if (element->name())
    widget->setObjectName(QString::fromUtf8(element->name()));
  if (!widget->isWindow()) {
    widget->setGeometry(0, 0, 1, 1);
    // Shown now, so that it appears with its parent, however late it came.
    widget->setVisible(true);
  }
  widget->setToolTipDuration(toolTipShowMs);
  if (traits_.translateMouse) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
  }
  singleClick_.setSingleShot(true);
  singleClick_.setInterval(QApplication::doubleClickInterval() + 100);
  connect(&singleClick_, &QTimer::timeout, this,
          [this] { deliverMouse(xnutil::MouseEvent::SingleClick, lastRelease_); });
  updateAccessibleName();
  styleChanged();
}

MuCommonQt::~MuCommonQt() {
  singleClick_.stop();
  // The widget may already be gone with a native container of its own.
  delete widget_.data();
}

MuCommonQt* MuCommonQt::of(MuElement* element) {
  return element ? dynamic_cast<MuCommonQt*>(element->common()) : nullptr;
}

QWidget* MuCommonQt::parentWidgetFor(MuContainer* parent) {
  for (MuElement* element = parent; element; element = element->parent()) {
    if (MuCommonQt* peer = of(element))
      return peer->childArea();
  }
  return nullptr;
}

MuElement* MuCommonQt::elementShowing(MuElement* root, QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    if (MuElement* found = findByWidget(root, widget))
      return found;
  }
  return nullptr;
}

void MuCommonQt::setText(const QString& text) {
  text_ = text;
  updateAccessibleName();
}

void MuCommonQt::updateAccessibleName() {
  QString name = QString::fromUtf8(element_->label() ? element_->label() : "");
  if (traits_.mnemonics)
    name = QString(name)
               .replace(QLatin1String("&&"), QLatin1String("\x01"))
               .remove('&')
               .replace(QLatin1Char('\x01'), QLatin1Char('&'));
  if (name.isEmpty())
    name = QString::fromUtf8(element_->name() ? element_->name() : "");
  widget_->setAccessibleName(name);
  widget_->setAccessibleDescription(QString::fromUtf8(element_->fullName().orEmpty()));
}

void MuCommonQt::setVisible(bool show) {
  if (widget_)
    widget_->setVisible(show);
}

bool MuCommonQt::isVisible() {
  // A dialog's window goes with the window it was made over, when that goes
  // first; the dialog then counts as hidden, so that it can still be destroyed.
  return widget_ && !widget_->isHidden();
}

void MuCommonQt::moveFocusOn() {
  for (QWidget* next = widget_->nextInFocusChain(); next && next != widget_;
       next = next->nextInFocusChain()) {
    if (next->window() == widget_->window() && !widget_->isAncestorOf(next) && next->isVisible() &&
        next->isEnabled() && (next->focusPolicy() & Qt::TabFocus)) {
      next->setFocus(Qt::TabFocusReason);
      return;
    }
  }
  widget_->clearFocus();
}

void MuCommonQt::setEnabled(bool enabled) {
  if (!enabled && (widget_->hasFocus() || widget_->isAncestorOf(QApplication::focusWidget())))
    moveFocusOn();
  widget_->setEnabled(enabled);
}

void MuCommonQt::setFocus() {
  MuDialog* dialog = element_->rootDialog();
  if (dialog && (dialog->isVisible() || dialog->runningCodeModal()))
    widget_->setFocus(Qt::OtherFocusReason);
}

bool MuCommonQt::hasFocus() {
  return widget_->hasFocus();
}

void MuCommonQt::setToolTip(const char* text) {
  if (!text) {
    widget_->setToolTip(QString());
    return;
  }
  // Rich text so that a long tip wraps at the platform's width; escaped so
  // that the tip shows exactly its text.
  const QString plain = QString::fromUtf8(text);
  const QFontMetrics metrics(QApplication::font("QTipLabel"));
  QString html = plain.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
  if (metrics.horizontalAdvance(plain) > toolTipWidth)
    html = QStringLiteral("<table width=\"%1\"><tr><td>%2</td></tr></table>")
               .arg(toolTipWidth)
               .arg(html);
  widget_->setToolTip(QStringLiteral("<qt>%1</qt>").arg(html));
}

void MuCommonQt::setSize(Size size) {
  const QSize wanted(std::max(0, size.width), std::max(0, size.height));
  if (widget_->size() == wanted)
    return;
  if (widget_->isWindow())
    widget_->resize(wanted);
  else
    widget_->setGeometry(QRect(widget_->pos(), wanted));
}

Size MuCommonQt::getSize() {
  const QSize size = widget_->size();
  return {size.width(), size.height()};
}

void MuCommonQt::setPosition(Point position) {
  const QPoint wanted(position.x, position.y);
  if (widget_->pos() == wanted)
    return;
  if (widget_->isWindow())
    widget_->move(wanted);
  else
    widget_->setGeometry(QRect(wanted, widget_->size()));
}

Point MuCommonQt::getPosition() {
  const QPoint position = widget_->pos();
  return {position.x(), position.y()};
}

int MuCommonQt::minWidth(int) {
  return textWidthQt(MuiQt::instance().font(element_->effectiveStyle()), text_, traits_.mnemonics);
}

int MuCommonQt::minHeight(int width) {
  return textHeightQt(MuiQt::instance().font(element_->effectiveStyle()), text_, width,
                      traits_.mnemonics, traits_.singleLine);
}

void MuCommonQt::styleChanged() {
  const MuStyle& style = element_->effectiveStyle();
  widget_->setFont(MuiQt::instance().font(style));
  QPalette palette = widget_->palette();
  if (const QColor text = MuiQt::colour(style.textColour.get()); text.isValid()) {
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
  }
  const QColor background = MuiQt::colour(style.backgroundColour.get());
  widget_->setAutoFillBackground(background.isValid() || widget_->isWindow());
  if (background.isValid())
    palette.setColor(QPalette::Window, background);
  widget_->setPalette(palette);
}

// The nearest scroll above the element scrolls the rectangle, taken into
// the coordinates of its child, into view.
void MuCommonQt::scrollIntoView(Rect rect) {
  for (MuElement* above = element_->parent(); above; above = above->parent()) {
    auto* scroll = dynamic_cast<MuScroll*>(above);
    MuCommonQt* content = scroll ? of(scroll->getChild(0)) : nullptr;
    if (!content || !content->widget()->isAncestorOf(widget_))
      continue;
    const QPoint origin = widget_->mapTo(content->widget(), QPoint(rect.tl.x, rect.tl.y));
    scroll->scrollToShow(Rect::at({origin.x(), origin.y()}, rect.size()));
    return;
  }
}

void MuCommonQt::invalidate(Rect rect) {
  widget_->update(QRect(rect.tl.x, rect.tl.y, rect.width(), rect.height()));
}

bool MuCommonQt::deliverMouse(int type, QPoint position) {
  xnutil::MouseEvent record;
  record.type = type;
  record.position = {position.x(), position.y()};
  record.source = element_;
  bool consumed = false;
  callFromQt([&] { consumed = element_->mouseEvent(record); });
  return consumed;
}

bool MuCommonQt::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_)
    return false;
  switch (event->type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonRelease:
  case QEvent::MouseButtonDblClick: {
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton)
      return false;
    const QPoint position = mouse->position().toPoint();
    if (event->type() == QEvent::MouseButtonPress)
      return deliverMouse(xnutil::MouseEvent::ButtonDown, position);
    if (event->type() == QEvent::MouseButtonDblClick) {
      singleClick_.stop();
      afterDoubleClick_ = true;
      return deliverMouse(xnutil::MouseEvent::DoubleClick, position);
    }
    const bool consumed = deliverMouse(xnutil::MouseEvent::ButtonUp, position);
    // A single click is told only once no double click can come any more.
    if (!afterDoubleClick_) {
      lastRelease_ = position;
      singleClick_.start();
    }
    afterDoubleClick_ = false;
    return consumed;
  }
  case QEvent::MouseMove:
    return deliverMouse(xnutil::MouseEvent::Move,
                        static_cast<QMouseEvent*>(event)->position().toPoint());
  case QEvent::Leave:
    deliverMouse(xnutil::MouseEvent::Leave, QPoint());
    return false;
  case QEvent::ContextMenu:
    deliverMouse(xnutil::MouseEvent::ContextMenu, static_cast<QContextMenuEvent*>(event)->pos());
    return false;
  default:
    return false;
  }
}

} // namespace mui
