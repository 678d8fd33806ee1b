#include "mui/qt/MuCheckQt.h"

#include "mui/qt/CheckWidgetQt.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuiQt.h"
#include "mui/qt/PixelImageQt.h"

#include <QFontMetrics>
#include <QStyleOptionButton>
#include <memory>

namespace mui {

MuCheckQt::MuCheckQt(MuContainer* parent, const char* name, const char* label, int type,
                     MuCheck* groupPeer, const char* imageBase)
    : MuCheck(parent, name, label, type, groupPeer, imageBase) {
  QWidget* parentWidget = MuCommonQt::parentWidgetFor(parent);
  QAbstractButton* button;
  if (type == Radio)
    button = new RadioButtonQt(this, parentWidget);
  else
    button = new CheckBoxQt(this, parentWidget);
  button->setText(QString::fromUtf8(label ? label : ""));
  // Only a group's first member is a tab stop; the arrow keys reach the others.
  if (groupPeer)
    button->setFocusPolicy(Qt::ClickFocus);
  if (imageBase) {
    for (int state : {Unset, Set, Indeterminate})
      images_[state] = namedPixmap(imageName(state).get(), Size());
  }
  MuCommonQt::Traits traits;
  traits.mnemonics = true;
  setCommon(std::make_unique<MuCommonQt>(this, button, traits));
  QObject::connect(button, &QAbstractButton::clicked, button, [this] { clickedInWidget(); });
}

MuCheck* MuCheckQt::make(MuContainer* parent, const char* name, const char* label, int type,
                         MuCheck* groupPeer, const char* imageBase) {
  return new MuCheckQt(parent, name, label, type, groupPeer, imageBase);
}

QAbstractButton* MuCheckQt::widget() const {
  return static_cast<QAbstractButton*>(MuCommonQt::of(const_cast<MuCheckQt*>(this))->widget());
}

void MuCheckQt::clickedInWidget() {
  callFromQt([this] { clickedByUser(); });
}

void MuCheckQt::setValue(bool value) {
  radioIndeterminate_ = false;
  if (auto* box = qobject_cast<QCheckBox*>(widget()))
    box->setCheckState(value ? Qt::Checked : Qt::Unchecked);
  else
    widget()->setChecked(value);
}

bool MuCheckQt::getValue() {
  if (auto* box = qobject_cast<QCheckBox*>(widget()))
    return box->checkState() == Qt::Checked;
  return widget()->isChecked();
}

void MuCheckQt::setIndeterminate() {
  if (auto* box = qobject_cast<QCheckBox*>(widget())) {
    box->setCheckState(Qt::PartiallyChecked);
    return;
  }
  widget()->setChecked(false);
  radioIndeterminate_ = true;
}

bool MuCheckQt::isIndeterminate() {
  if (auto* box = qobject_cast<QCheckBox*>(widget()))
    return box->checkState() == Qt::PartiallyChecked;
  return radioIndeterminate_;
}

void MuCheckQt::setLabel(const char* label) {
  MuCheck::setLabel(label);
  MuCommonQt::of(this)->setText(label);
  widget()->setText(QString::fromUtf8(label ? label : ""));
}

QPixmap MuCheckQt::stateImage() {
  return images_[state()];
}

int MuCheckQt::zeroWidth() {
  return QFontMetrics(MuiQt::instance().font(effectiveStyle())).horizontalAdvance(QLatin1Char('0'));
}

Size MuCheckQt::imageSize() {
  const QSize size = layoutSize(images_[0]);
  return {size.width(), size.height()};
}

QRect MuCheckQt::styleRect(bool contents) {
  const bool radio = checkType() == Radio;
  QStyleOptionButton option;
  option.initFrom(widget());
  option.rect = QRect(0, 0, 1000, 1000);
  const QStyle::SubElement element =
      contents ? (radio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents)
               : (radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator);
  return widget()->style()->subElementRect(element, &option, widget());
}

// The style puts the label where its contents begin; the box is as high as
// its indicator.
Size MuCheckQt::nativeBoxSize() {
  return {styleRect(true).left(), styleRect(false).height()};
}

int MuCheckQt::nativeMarkWidth() {
  const QRect indicator = styleRect(false);
  return indicator.left() + indicator.width();
}

} // namespace mui
