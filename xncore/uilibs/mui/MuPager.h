// mui::MuPager: shows one of several pages, its children, with or without a
// row of tabs to pick one. Pages that don't show keep their state and their
// last size. The pager has no text to measure, so a form gives it a fixed or
// a weighted size.
#pragma once

#include "mui/MuContainer.h"

#include <memory>
#include <vector>

namespace mui {

class MuPager : public MuContainer {
public:
  /// The pager style: tabs, or nothing but the current page.
  enum Style : int { WithTabs = 0, NoTabs = 1 };

  static MuPager* create(MuContainer* parent, const char* name, int pagerStyle);

  /// The binding shows the new title of page `index` on its tab.
  virtual void titleChanged(int index);
  /// The binding moves its tab to the current page.
  virtual void currentChanged();

  MuElement* getChild(int index) override;
  int childCount() override;
  /// Appends a page, untitled: its tab shows the element's name.
  void add(MuElement* element) override;
  /// The page before the current one becomes current when the current one goes.
  void remove(MuElement* element) override;
  void removeAll() override;
  /// Shows the current page only, in the page area.
  void layout() override;
  /// Nothing to measure of its own: 0.
  int minWidth(int height) override;
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;
  plat::String describeItems() override;
  bool perform(const char* action, const char* argument) override;

  /// Makes page `index` current without an event; out of range is ignored.
  void setCurrent(int index);
  /// The user picked page `i`: it becomes current and EventChanged follows.
  void select(int i);
  /// A page that isn't one of this pager's is ignored.
  void setTitle(MuElement* page, const char* title);
  /// What the tab of page `index` shows: its title, or else the page's name.
  const char* caption(int index);

  int current() const noexcept { return current_; }
  int pagerStyle() const noexcept { return pagerStyle_; }
  bool hasTabs() const noexcept { return pagerStyle_ == WithTabs; }

  ~MuPager() override;

protected:
  MuPager(MuContainer* parent, const char* name, int pagerStyle);

  /// Binding: a page came at `index` (the last); it adds its tab.
  virtual void pageAdded(int index) = 0;
  /// Binding: the page at `index` went; it removes its tab.
  virtual void pageRemoved(int index) = 0;
  /// Binding: the rectangle of the current page, in the pager's coordinates.
  virtual Rect pageArea() = 0;

private:
  struct Page {
    std::unique_ptr<MuElement> element;
    plat::String title;
  };

  int indexOf(MuElement* element) const noexcept;
  bool isValid(int index) const noexcept { return index >= 0 && index < childCountOf(); }
  int childCountOf() const noexcept { return static_cast<int>(pages_.size()); }

  int pagerStyle_;
  std::vector<Page> pages_;
  int current_ = 0;
};

using MuPagerFactory = MuPager* (*)(MuContainer* parent, const char* name, int pagerStyle);
extern MuPagerFactory muPagerFactory;

} // namespace mui
