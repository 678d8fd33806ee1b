// mui::MuCommon: the native peer of one element, standing for one platform
// window. The element owns it and forwards to it; a binding supplies one
// subclass.
#pragma once

#include "mui/Geometry.h"

namespace mui {

class MuCommon {
public:
  virtual ~MuCommon() = default;

  virtual void setVisible(bool show) = 0;
  /// The window's own visible flag, not that of its ancestors.
  virtual bool isVisible() = 0;
  virtual void setEnabled(bool enabled) = 0;
  virtual void setFocus() = 0;
  virtual bool hasFocus() = 0;
  /// Null removes the tip.
  virtual void setToolTip(const char* text) = 0;
  virtual void setSize(Size size) = 0;
  virtual Size getSize() = 0;
  /// The narrowest width that shows the content at `height`.
  virtual int minWidth(int height) = 0;
  /// The least height that shows the content at `width`; 0 for a width below 1.
  virtual int minHeight(int width) = 0;
  virtual void setPosition(Point position) = 0;
  /// Relative to the parent window.
  virtual Point getPosition() = 0;
  virtual void styleChanged() {}
  virtual void scrollIntoView(Rect) {}
  virtual void invalidate(Rect) {}
};

} // namespace mui
