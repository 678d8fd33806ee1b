// mui::MuScrollQt: the scroll of the Qt binding, a scroll area whose
// viewport holds the child's widget. The toolkit's layout decides which bars
// show and how large the child is; the bars only scroll, a line being 30
// units, and every scroll places the child again.
#pragma once

#include "mui/MuScroll.h"

#include <QAbstractScrollArea>
#include <QPointer>

namespace mui {

class MuScrollQt : public MuScroll {
public:
  static MuScroll* make(MuContainer* parent, const char* name, int scrollStyle);
  ~MuScrollQt() override;

  Point getScrollPosition() override;
  void setScrollPosition(Point position) override;
  Size borderSize() override;
  int horizontalBarHeight() override;
  int verticalBarWidth() override;

  QAbstractScrollArea* area() const noexcept { return area_; }

protected:
  void setBars(bool horizontal, bool vertical, Size content, Size available) override;

private:
  class Area;

  MuScrollQt(MuContainer* parent, const char* name, int scrollStyle);

  QPointer<QAbstractScrollArea> area_;
};

} // namespace mui
