// mui::MuSpacer: an element without a native peer that only takes up room.
// It keeps its geometry itself; a spacer of weight 1 is the expander of a row.
#pragma once

#include "mui/MuElement.h"

namespace mui {

class MuSpacer : public MuElement {
public:
  /// `width` and `height` are the spacer's minima.
  static MuSpacer* create(MuContainer* parent, int width, int height);

  void setVisible(bool show) override;
  bool isVisible() override;
  void setSize(Size size) override;
  /// (0, 0) while hidden.
  Size getSize() override;
  void setPosition(Point position) override;
  Point getPosition() override;
  int minWidth(int height) override;
  int minHeight(int width) override;
  const char* typeName() override;
  /// "x,y wxh", without the common lines.
  plat::String describe() override;

  void setMinimum(Size minimum) noexcept { minimum_ = minimum; }

private:
  MuSpacer(MuContainer* parent, int width, int height);

  Size size_;
  Point position_;
  Size minimum_;
  bool visible_ = true;
};

} // namespace mui
