#include "mui/qt/LabelWrapperQt.h"

#include "mui/MuContainer.h"
#include "mui/qt/MuiQt.h"
#include "mui/qt/TextMeasureQt.h"
#include "plat/Assertion.h"

#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace mui {

namespace {

QWidget* wrapperParent(MuElement* element) {
  XN_ASSERT(element);
  QWidget* parent = MuCommonQt::parentWidgetFor(element->parent());
  XN_ASSERT(parent);
  return parent;
}

// The caption's '&' marks its mnemonic, also for the accessible name.
MuCommonQt::Traits withMnemonics(MuCommonQt::Traits traits) {
  traits.mnemonics = true;
  return traits;
}

QRect toQRect(const Rect& rect) {
  return QRect(rect.tl.x, rect.tl.y, rect.width(), rect.height());
}

} // namespace

LabelWrapperQt::LabelWrapperQt(MuElement* element, MinSizeCallback* control, Traits traits)
    : MuCommonQt(element, new QWidget(wrapperParent(element)), withMnemonics(traits)),
      LabelWrapper(element, control) {
  caption_ = new QLabel(widget());
  caption_->setTextFormat(Qt::PlainText);
  caption_->setWordWrap(true);
  caption_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  caption_->setText(captionText());
  caption_->setVisible(hasCaption());
}

void LabelWrapperQt::setControl(QWidget* control) {
  control_ = control;
  caption_->setBuddy(control);
  widget()->setFocusProxy(control);
  reposition();
}

int LabelWrapperQt::minWidth(int) {
  return measureWidth();
}

int LabelWrapperQt::minHeight(int width) {
  return measureHeight(width);
}

void LabelWrapperQt::setSize(Size size) {
  MuCommonQt::setSize(size);
  reposition();
}

void LabelWrapperQt::styleChanged() {
  MuCommonQt::styleChanged();
  if (control_)
    reposition();
}

QFont LabelWrapperQt::captionFont() const {
  return MuiQt::instance().font(wrappedElement()->effectiveStyle());
}

QString LabelWrapperQt::captionText() const {
  return QString::fromUtf8(wrappedElement()->label() ? wrappedElement()->label() : "");
}

Size LabelWrapperQt::captionTextSize() {
  const QString text = captionText();
  return {textWidthQt(captionFont(), text, true), textHeightQt(captionFont(), text, 1, true, true)};
}

int LabelWrapperQt::captionHeight(int width) {
  return textHeightQt(captionFont(), captionText(), width, true, false);
}

bool LabelWrapperQt::controlTextCentre(const Rect& control, int* centre) {
  if (auto* box = qobject_cast<QPlainTextEdit*>(control_.data())) {
    const int firstLine = box->frameWidth() + static_cast<int>(box->document()->documentMargin());
    *centre = control.tl.y + firstLine + QFontMetrics(box->font()).height() / 2;
    return true;
  }
  *centre = (control.tl.y + control.br.y) / 2;
  return true;
}

void LabelWrapperQt::place(const Arrangement& arrangement) {
  const QString text = captionText();
  if (caption_->text() != text)
    caption_->setText(text);
  caption_->setVisible(hasCaption());
  caption_->setGeometry(toQRect(arrangement.caption));
  if (control_)
    control_->setGeometry(toQRect(arrangement.control));
}

} // namespace mui
