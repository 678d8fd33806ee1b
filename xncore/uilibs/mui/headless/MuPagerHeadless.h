// mui::MuPagerHeadless: the pager of the headless binding. Its tabs are a
// list of captions one line of text high; tests pick a tab as the user would.
#pragma once

#include "mui/MuPager.h"

#include <string>
#include <vector>

namespace mui {

class MuPagerHeadless : public MuPager {
public:
  static MuPager* make(MuContainer* parent, const char* name, int pagerStyle);

  void titleChanged(int index) override;
  void currentChanged() override;

  const std::vector<std::string>& tabs() const noexcept { return tabs_; }
  /// The tab shown as chosen.
  int currentTab() const noexcept { return currentTab_; }
  /// The height of the row of tabs.
  int tabHeight();
  /// The user clicks the tab of page `index`.
  void pickTab(int index);

protected:
  void pageAdded(int index) override;
  void pageRemoved(int index) override;
  Rect pageArea() override;

private:
  MuPagerHeadless(MuContainer* parent, const char* name, int pagerStyle);

  std::vector<std::string> tabs_;
  int currentTab_ = 0;
};

} // namespace mui
