#include "mui/MuSpacer.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "plat/DString.h"

namespace mui {

MuSpacer::MuSpacer(MuContainer* parent, int width, int height)
    : MuElement(parent, nullptr), minimum_(width, height) {}

MuSpacer* MuSpacer::create(MuContainer* parent, int width, int height) {
  auto* spacer = new MuSpacer(parent, width, height);
  parent->add(spacer);
  return spacer;
}

void MuSpacer::setVisible(bool show) {
  MeasurePass::invalidate();
  visible_ = show;
}

bool MuSpacer::isVisible() {
  return visible_;
}

void MuSpacer::setSize(Size size) {
  size_ = size;
}

Size MuSpacer::getSize() {
  return visible_ ? size_ : Size();
}

void MuSpacer::setPosition(Point position) {
  position_ = position;
}

Point MuSpacer::getPosition() {
  return position_;
}

int MuSpacer::minWidth(int) {
  return minimum_.width;
}

int MuSpacer::minHeight(int) {
  return minimum_.height;
}

const char* MuSpacer::typeName() {
  return "spacer";
}

plat::String MuSpacer::describe() {
  const Size size = getSize();
  return plat::strFormat("%d,%d %dx%d", static_cast<int>(position_.x),
                         static_cast<int>(position_.y), static_cast<int>(size.width),
                         static_cast<int>(size.height));
}

} // namespace mui
