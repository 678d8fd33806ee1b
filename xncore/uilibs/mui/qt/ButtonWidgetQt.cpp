#include "mui/qt/ButtonWidgetQt.h"

#include "mui/qt/MuButtonQt.h"
#include "mui/qt/PixelImageQt.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace mui {

namespace {

// Pixels of the arrow drawn in the middle of its column.
constexpr int arrowSide = 9;

Qt::Alignment horizontalAlignment(int textAlign) {
  switch (textAlign) {
  case MuButton::AlignLeft:
    return Qt::AlignLeft;
  case MuButton::AlignRight:
    return Qt::AlignRight;
  default:
    return Qt::AlignHCenter;
  }
}

// The left edge of a block `width` wide inside `area`, as the alignment puts it.
int alignedLeft(QRect area, int width, int textAlign) {
  switch (textAlign) {
  case MuButton::AlignLeft:
    return area.left();
  case MuButton::AlignRight:
    return area.left() + area.width() - width;
  default:
    return area.left() + (area.width() - width) / 2;
  }
}

} // namespace

ButtonWidgetQt::ButtonWidgetQt(MuButtonQt* button, QWidget* parent)
    : QPushButton(parent), button_(button) {
  // Return is decided in keyPressEvent, not by Qt's dialog rules.
  setAutoDefault(false);
  // The hot state changes the image and, for HotFrame buttons, the frame.
  setAttribute(Qt::WA_Hover);
  if (button->options() & MuButton::NoFocus)
    setFocusPolicy(Qt::NoFocus);
  if (button->buttonType() == MuButton::Hyperlink)
    setCursor(Qt::PointingHandCursor);
}

int ButtonWidgetQt::imageState() const {
  if (!isEnabled())
    return MuButton::ImageNormal;
  if (isDown())
    return MuButton::ImagePressed;
  return underMouse() ? MuButton::ImageHot : MuButton::ImageNormal;
}

bool ButtonWidgetQt::showsFrame() const {
  if (button_->buttonType() != MuButton::Normal || button_->isFlat())
    return false;
  if (button_->options() & MuButton::HotFrame)
    return isEnabled() && (isDown() || underMouse());
  return true;
}

void ButtonWidgetQt::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  QRect area = rect();
  const bool framed = showsFrame();
  if (framed) {
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    area = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    // A label set to one side keeps the padding of the measure from the
    // frame, as a centred one does at the button's narrowest.
    if (button_->textAlign() != MuButton::AlignCentre) {
      const int inset = button_->labelPadding() / 2;
      area.setLeft(std::max(area.left(), inset));
      area.setRight(std::min(area.right(), width() - 1 - inset));
    }
  }
  paintContent(painter, area);
  // The style's mark inside a frame; around the content without one.
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect =
        framed ? style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this) : area;
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

void ButtonWidgetQt::paintContent(QPainter& painter, QRect area) {
  const int textAlign = button_->textAlign();
  const QPixmap& pixmap = button_->image(imageState());
  const QSize imageSize = layoutSize(pixmap);
  if (button_->buttonType() == MuButton::Custom) {
    // The image is the button; the label stands inside the margins over it.
    if (!pixmap.isNull())
      painter.drawPixmap(alignedLeft(rect(), imageSize.width(), textAlign),
                         (height() - imageSize.height()) / 2, pixmap);
    const int* margins = button_->textMargins();
    area = rect().adjusted(margins[0], margins[1], -margins[2], -margins[3]);
  } else if (button_->options() & MuButton::DropDown) {
    const int column = MuButton::dropDownWidth();
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(area.right() + 1 - (column + arrowSide) / 2,
                       area.top() + (area.height() - arrowSide) / 2, arrowSide, arrowSide);
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
    area.setRight(area.right() - column);
  }
  const bool image = !pixmap.isNull() && button_->buttonType() != MuButton::Custom;
  if (text().isEmpty()) {
    if (image)
      painter.drawPixmap(alignedLeft(area, imageSize.width(), textAlign),
                         area.top() + (area.height() - imageSize.height()) / 2, pixmap);
    return;
  }

  QFont font = this->font();
  QPalette palette = this->palette();
  if (button_->buttonType() == MuButton::Hyperlink) {
    font.setUnderline(true);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
      palette.setColor(group, QPalette::ButtonText, palette.color(group, QPalette::Link));
  }
  painter.setFont(font);
  const int flags = Qt::TextShowMnemonic | Qt::TextWordWrap;
  const int vertical = static_cast<int>(Qt::AlignVCenter) | flags;
  if (!image) {
    style()->drawItemText(&painter, area,
                          static_cast<int>(horizontalAlignment(textAlign)) | vertical, palette,
                          isEnabled(), text(), QPalette::ButtonText);
    return;
  }
  // The image leads the label; the two stand aligned as one block. The label
  // gets all the room to its right: a rectangle cut to its measured width
  // could break its last word for a fraction of a pixel.
  const int gap = imageSize.width() + MuButton::imageGap();
  const int room = std::max(0, area.width() - gap);
  const int textWidth = std::min(
      room,
      painter.fontMetrics().boundingRect(QRect(0, 0, room, area.height()), flags, text()).width());
  const int left = alignedLeft(area, gap + textWidth, textAlign);
  painter.drawPixmap(left, area.top() + (area.height() - imageSize.height()) / 2, pixmap);
  style()->drawItemText(&painter,
                        QRect(left + gap, area.top(), area.right() + 1 - left - gap, area.height()),
                        static_cast<int>(Qt::AlignLeft) | vertical, palette, isEnabled(), text(),
                        QPalette::ButtonText);
}

void ButtonWidgetQt::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (!enter || !plain) {
    QPushButton::keyPressEvent(event);
    return;
  }
  // The dialog's own activation answers Return on its default button, so that
  // one key press never clicks twice.
  if (button_->isDialogDefault()) {
    event->ignore();
    return;
  }
  click();
}

} // namespace mui
