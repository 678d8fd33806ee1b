#include "mui/qt/MuLayoutQt.h"

#include "mui/qt/MuCommonQt.h"

#include <QWidget>

namespace mui {

MuLayoutQt::MuLayoutQt(MuContainer* parent, const char* name, int orientation)
    : MuLayout(parent, name, orientation) {
  MuCommonQt::Traits traits;
  traits.translateMouse = true;
  setCommon(
      std::make_unique<MuCommonQt>(this, new QWidget(MuCommonQt::parentWidgetFor(parent)), traits));
}

MuLayout* MuLayoutQt::make(MuContainer* parent, const char* name, int orientation) {
  return new MuLayoutQt(parent, name, orientation);
}

void MuLayoutQt::orderChanged() {
  QWidget* previous = nullptr;
  for (int i = 0, n = childCount(); i < n; ++i) {
    MuCommonQt* peer = MuCommonQt::of(getChild(i));
    if (!peer)
      continue;
    peer->widget()->raise();
    if (previous)
      QWidget::setTabOrder(previous, peer->widget());
    previous = peer->widget();
  }
}

void MuLayoutQt::relayout() {
  MuLayout::relayout();
  MuCommonQt::of(this)->widget()->update();
}

} // namespace mui
