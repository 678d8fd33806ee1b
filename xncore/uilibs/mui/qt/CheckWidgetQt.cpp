#include "mui/qt/CheckWidgetQt.h"

#include "mui/Mui.h"
#include "mui/qt/MuCheckQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/PixelImageQt.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <type_traits>

namespace mui {

namespace {

// The enabled and shown member `step` places from `check` in its group, wrapping around.
MuCheckQt* neighbour(MuCheckQt* check, int step) {
  const std::vector<MuCheck*>& members = check->group()->members();
  const auto count = static_cast<int>(members.size());
  const auto self =
      static_cast<int>(std::find(members.begin(), members.end(), check) - members.begin());
  for (int i = 1; i < count; ++i) {
    auto* candidate = static_cast<MuCheckQt*>(
        members[static_cast<std::size_t>(((self + step * i) % count + count) % count)]);
    if (candidate->widget()->isEnabled() && candidate->widget()->isVisible())
      return candidate;
  }
  return nullptr;
}

} // namespace

template <class Base>
CheckWidgetQt<Base>::CheckWidgetQt(MuCheckQt* check, QWidget* parent)
    : Base(parent), check_(check) {
  // The toolkit's group keeps radios exclusive.
  this->setAutoExclusive(false);
}

template <class Base>
void CheckWidgetQt<Base>::paintEvent(QPaintEvent*) {
  constexpr bool radio = std::is_same_v<Base, QRadioButton>;
  QStylePainter painter(this);
  QStyleOptionButton option;
  this->initStyleOption(&option);
  const QPixmap image = check_->stateImage();
  QRect box;
  if (!image.isNull()) {
    const QSize size = layoutSize(image);
    box = QRect(QPoint(0, (this->height() - size.height()) / 2), size);
    painter.drawPixmap(box.topLeft(), image);
  } else {
    QStyleOptionButton indicator = option;
    indicator.rect = this->style()->subElementRect(
        radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, this);
    painter.drawPrimitive(radio ? QStyle::PE_IndicatorRadioButton : QStyle::PE_IndicatorCheckBox,
                          indicator);
    box = indicator.rect;
  }
  const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextWordWrap;
  const QRect area = this->rect().adjusted(check_->boxSize().width, 0, 0, 0);
  this->style()->drawItemText(&painter, area, flags, option.palette, this->isEnabled(),
                              this->text(), QPalette::WindowText);
  if (this->hasFocus()) {
    // The focus ring goes round the label, or round the box when there is none.
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = this->text().isEmpty() ? box
                                        : painter.fontMetrics()
                                              .boundingRect(area, flags, this->text())
                                              .adjusted(-1, 0, 1, 0)
                                              .intersected(this->rect());
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

template <class Base>
void CheckWidgetQt<Base>::keyPressEvent(QKeyEvent* event) {
  int step = 0;
  switch (event->key()) {
  case Qt::Key_Up:
  case Qt::Key_Left:
    step = -1;
    break;
  case Qt::Key_Down:
  case Qt::Key_Right:
    step = 1;
    break;
  default:
    break;
  }
  if (step == 0 || !check_->group() || event->modifiers() != Qt::NoModifier) {
    Base::keyPressEvent(event);
    return;
  }
  // As in a dialog of the platform, moving to a radio selects it.
  if (MuCheckQt* next = neighbour(check_, step)) {
    next->widget()->setFocus(Qt::TabFocusReason);
    next->widget()->click();
  }
}

template class CheckWidgetQt<QCheckBox>;
template class CheckWidgetQt<QRadioButton>;

} // namespace mui
