// mui::MuScroll: scroll bars around a single child that may be larger than
// the scroll's own area. The child always gets at least the visible size
// and fills it; along an axis whose bar is allowed it may be as large as it
// needs, and the bar shows when it is. Its measure reserves room for every
// bar that may appear.
#pragma once

#include "mui/MuContainer.h"

namespace mui {

class MuScroll : public MuContainerSingle {
public:
  /// Bits of the scroll style.
  enum Style : int { VerticalBar = 0x01, HorizontalBar = 0x02, ThinBorder = 0x04 };

  static MuScroll* create(MuContainer* parent, const char* name, int scrollStyle);

  /// The child's top-left corner that shows at the top left, (0, 0) unscrolled.
  virtual Point getScrollPosition();
  virtual void setScrollPosition(Point position);
  /// The measures never exceed `size`.
  virtual void setMaxSize(Size size);
  /// One border's width and height.
  virtual Size borderSize();
  virtual int horizontalBarHeight();
  virtual int verticalBarWidth();
  /// Both borders, and room for every bar that is allowed.
  virtual Size chromeSize();

  /// The child, then layout().
  void add(MuElement* element) override;
  /// Places the child at the scroll position with the size it needs.
  void layout() override;
  int minWidth(int height) override;
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;

  /// Which bars `available` (the inside size) needs for the child, and the
  /// child's size; `available` loses the room of the bars that show.
  Size computeBars(Size& available, bool* horizontal, bool* vertical);
  /// Scrolls as little as shows `rect` of the child, or its top left.
  void scrollToShow(Rect rect);

  int scrollStyle() const noexcept { return scrollStyle_; }
  Size maxSize() const noexcept { return maxSize_; }

protected:
  MuScroll(MuContainer* parent, const char* name, int scrollStyle);

  /// Binding: shows the bars that the layout decided on, each ranging over
  /// `content` with a page of `available`, and keeps the position in range.
  virtual void setBars(bool horizontal, bool vertical, Size content, Size available) = 0;

private:
  bool allows(int bar) const noexcept { return (scrollStyle_ & bar) != 0; }

  int scrollStyle_;
  Size maxSize_{0x7FFFFFFF, 0x7FFFFFFF};
  /// The inside size that the last layout left visible.
  Size visible_;
};

using MuScrollFactory = MuScroll* (*)(MuContainer* parent, const char* name, int scrollStyle);
extern MuScrollFactory muScrollFactory;

} // namespace mui
