// mui::MuPagerQt: the pager of the Qt binding: a plain widget that holds the
// pages and, with tabs, a QTabBar above a pane drawn in the style's tab
// frame. Picking a tab selects its page.
#pragma once

#include "mui/MuPager.h"

#include <QPointer>
#include <QTabBar>

namespace mui {

class MuPagerQt : public MuPager {
public:
  static MuPager* make(MuContainer* parent, const char* name, int pagerStyle);

  void titleChanged(int index) override;
  void currentChanged() override;
  void layout() override;

  QTabBar* tabBar() const noexcept { return tabBar_; }

protected:
  void pageAdded(int index) override;
  void pageRemoved(int index) override;
  Rect pageArea() override;

private:
  MuPagerQt(MuContainer* parent, const char* name, int pagerStyle);

  /// The pane under the tabs, in the pager widget's coordinates.
  QRect paneRect() const;
  /// Runs a change of the tab bar that the program made, which raises no event.
  template <class Change>
  void changeTabs(Change&& change);

  QPointer<QTabBar> tabBar_;
  bool changingTabs_ = false;
};

} // namespace mui
