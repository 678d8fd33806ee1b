// mui::MuScrollHeadless: the scroll of the headless binding. Its bars are 16
// pixels thick and its thin border 1 pixel; it keeps the bars that show,
// their ranges and the position, and lets tests scroll as the user would.
#pragma once

#include "mui/MuScroll.h"

namespace mui {

class MuScrollHeadless : public MuScroll {
public:
  static constexpr int barThickness = 16;

  static MuScroll* make(MuContainer* parent, const char* name, int scrollStyle);

  Point getScrollPosition() override { return position_; }
  void setScrollPosition(Point position) override;
  Size borderSize() override { return {1, 1}; }
  int horizontalBarHeight() override { return barThickness; }
  int verticalBarWidth() override { return barThickness; }

  bool showsHorizontalBar() const noexcept { return horizontal_; }
  bool showsVerticalBar() const noexcept { return vertical_; }
  /// The largest position each bar allows.
  Point range() const noexcept { return range_; }
  /// The user drags the bars to `position`.
  void dragBarsTo(Point position);

protected:
  void setBars(bool horizontal, bool vertical, Size content, Size available) override;

private:
  MuScrollHeadless(MuContainer* parent, const char* name, int scrollStyle);

  Point position_;
  Point range_;
  bool horizontal_ = false;
  bool vertical_ = false;
};

} // namespace mui
