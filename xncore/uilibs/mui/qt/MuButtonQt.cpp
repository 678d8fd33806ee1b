#include "mui/qt/MuButtonQt.h"

#include "mui/MuDialog.h"
#include "mui/qt/ButtonWidgetQt.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/PixelImageQt.h"
#include "rfb/PixelBuffer.h"

#include <QPointer>
#include <QStyleOptionButton>
#include <QTimer>
#include <memory>

namespace mui {

MuButtonQt::MuButtonQt(MuContainer* parent, const char* name, const char* label, int type,
                       int options, int textAlign)
    : MuButton(parent, name, label, type, options, textAlign) {
  auto* button = new ButtonWidgetQt(this, MuCommonQt::parentWidgetFor(parent));
  button->setText(QString::fromUtf8(label ? label : ""));
  MuCommonQt::Traits traits;
  traits.mnemonics = true;
  setCommon(std::make_unique<MuCommonQt>(this, button, traits));
  QObject::connect(button, &QPushButton::clicked, button, [this] { clickedInWidget(); });
}

MuButton* MuButtonQt::make(MuContainer* parent, const char* name, const char* label, int type,
                           int options, int textAlign) {
  return new MuButtonQt(parent, name, label, type, options, textAlign);
}

QPushButton* MuButtonQt::widget() const {
  return static_cast<QPushButton*>(MuCommonQt::of(const_cast<MuButtonQt*>(this))->widget());
}

void MuButtonQt::clickedInWidget() {
  // The window takes the focus back once the click is over; set up first,
  // since an observer may delete the button.
  if (options() & FocusBack) {
    QPointer<QWidget> window = widget()->window();
    QTimer::singleShot(0, window, [window] {
      if (window)
        window->setFocus(Qt::OtherFocusReason);
    });
  }
  callFromQt([this] { clickedByUser(); });
}

bool MuButtonQt::isDialogDefault() {
  MuDialog* dialog = rootDialog();
  return dialog && dialog->button(MuDialog::DefaultButton) == this;
}

void MuButtonQt::setLabel(const char* label) {
  MuButton::setLabel(label);
  MuCommonQt::of(this)->setText(label);
  widget()->setText(QString::fromUtf8(label ? label : ""));
}

void MuButtonQt::setImage(const char* name, const Size* size, int state) {
  MuButton::setImage(name, size, state);
  images_[state] = namedPixmap(name, size ? *size : Size());
  widget()->update();
}

void MuButtonQt::setImageBuffer(rfb::PixelBuffer* buffer, bool own, int state) {
  std::unique_ptr<rfb::PixelBuffer> owned(own ? buffer : nullptr);
  images_[state] = buffer ? QPixmap::fromImage(imageFromBuffer(*buffer)) : QPixmap();
  widget()->update();
}

const QPixmap& MuButtonQt::image(int state) const {
  return images_[state].isNull() ? images_[ImageNormal] : images_[state];
}

Size MuButtonQt::imageSize() {
  const QSize size = layoutSize(images_[ImageNormal]);
  return {size.width(), size.height()};
}

Size MuButtonQt::nativeFramePadding() {
  QStyleOptionButton option;
  option.initFrom(widget());
  const QSize padded =
      widget()->style()->sizeFromContents(QStyle::CT_PushButton, &option, QSize(0, 0), widget());
  return {padded.width(), padded.height()};
}

} // namespace mui
