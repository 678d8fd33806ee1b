#include "mui/qt/MuImageQt.h"

#include "mui/qt/MuCommonQt.h"
#include "mui/qt/PixelBufferQt.h"
#include "mui/qt/PixelImageQt.h"
#include "ui/NamedImage.h"

#include <QPainter>
#include <QWidget>

namespace mui {

namespace {

class ImageWidgetQt : public QWidget {
public:
  using QWidget::QWidget;

  const QImage& image() const noexcept { return image_; }
  void setImage(QImage image) {
    image_ = std::move(image);
    update();
  }

protected:
  void paintEvent(QPaintEvent*) override {
    if (image_.isNull())
      return;
    QPainter painter(this);
    const QSize size = layoutSize(image_);
    painter.drawImage(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), image_);
  }

private:
  QImage image_;
};

// Pixels Qt can paint from as they are are not copied.
QImage imageOf(rfb::PixelBuffer* buffer) {
  if (!buffer || buffer->width() <= 0 || buffer->height() <= 0)
    return QImage();
  if (auto* frame = dynamic_cast<rfb::FullFramePixelBuffer*>(buffer)) {
    QImage image = PixelBufferQt::wrap(*frame);
    if (!image.isNull())
      return image;
  }
  return imageFromBuffer(*buffer);
}

} // namespace

MuImageQt::MuImageQt(MuContainer* parent, const char* name) : MuImage(parent, name) {
  setCommon(
      std::make_unique<MuCommonQt>(this, new ImageWidgetQt(MuCommonQt::parentWidgetFor(parent))));
}

MuImage* MuImageQt::make(MuContainer* parent, const char* name, const char* image,
                         const Size* size) {
  auto* element = new MuImageQt(parent, name);
  if (image)
    element->setImage(image, size);
  return element;
}

Size MuImageQt::getImageSize() {
  const QSize size =
      layoutSize(static_cast<ImageWidgetQt*>(MuCommonQt::of(this)->widget())->image());
  return {size.width(), size.height()};
}

bool MuImageQt::showNamedImage(const char* name, Size size) {
  named_ = ui::getNamedImage(name, toDevicePixels(size));
  QImage image = imageOf(named_.get());
  image.setDevicePixelRatio(deviceRatio());
  static_cast<ImageWidgetQt*>(MuCommonQt::of(this)->widget())->setImage(std::move(image));
  return getImageSize() != Size();
}

void MuImageQt::showBuffer(rfb::PixelBuffer* buffer) {
  static_cast<ImageWidgetQt*>(MuCommonQt::of(this)->widget())->setImage(imageOf(buffer));
}

} // namespace mui
