#include "mui/MuPager.h"

#include "mui/MeasurePass.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstring>

namespace mui {

MuPagerFactory muPagerFactory = nullptr;

MuPager::MuPager(MuContainer* parent, const char* name, int pagerStyle)
    : MuContainer(parent, name), pagerStyle_(pagerStyle) {}

MuPager::~MuPager() = default;

MuPager* MuPager::create(MuContainer* parent, const char* name, int pagerStyle) {
  XN_ASSERT(muPagerFactory);
  MuPager* pager = muPagerFactory(parent, name, pagerStyle);
  parent->add(pager);
  return pager;
}

void MuPager::titleChanged(int) {}

void MuPager::currentChanged() {}

MuElement* MuPager::getChild(int index) {
  const int i = resolveIndex(index, childCountOf());
  return i < 0 ? nullptr : pages_[static_cast<std::size_t>(i)].element.get();
}

int MuPager::childCount() {
  return childCountOf();
}

int MuPager::indexOf(MuElement* element) const noexcept {
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    if (pages_[i].element.get() == element)
      return static_cast<int>(i);
  }
  return -1;
}

void MuPager::add(MuElement* element) {
  XN_ASSERT(element);
  adopt(element);
  pages_.push_back({std::unique_ptr<MuElement>(element), plat::String()});
  MeasurePass::invalidate();
  pageAdded(childCountOf() - 1);
  layout();
}

void MuPager::remove(MuElement* element) {
  const auto i = std::find_if(pages_.begin(), pages_.end(), [element](const Page& page) {
    return page.element.get() == element;
  });
  const auto& pages = pages_;
  XN_ASSERT(i != pages.end());
  const int index = static_cast<int>(i - pages_.begin());
  if (current_ >= index)
    current_ = std::max(current_ - 1, 0);
  std::unique_ptr<MuElement> doomed = std::move(i->element);
  pages_.erase(i);
  doomed.reset();
  MeasurePass::invalidate();
  pageRemoved(index);
  layout();
  currentChanged();
}

void MuPager::removeAll() {
  while (!pages_.empty()) {
    pages_.pop_back();
    pageRemoved(childCountOf());
  }
  current_ = 0;
  MeasurePass::invalidate();
}

void MuPager::layout() {
  if (pages_.empty())
    return;
  for (std::size_t i = 0; i < pages_.size(); ++i)
    pages_[i].element->setVisible(static_cast<int>(i) == current_);
  const Rect area = pageArea();
  MuElement* page = pages_[static_cast<std::size_t>(current_)].element.get();
  page->setPosition(area.tl);
  page->setSize(area.size());
}

int MuPager::minWidth(int) {
  return 0;
}

int MuPager::minHeight(int) {
  return 0;
}

void MuPager::setCurrent(int index) {
  if (!isValid(index))
    return;
  current_ = index;
  layout();
  currentChanged();
}

void MuPager::select(int i) {
  XN_ASSERT(isValid(i));
  current_ = i;
  layout();
  notify(this, EventChanged);
}

void MuPager::setTitle(MuElement* page, const char* title) {
  const int index = indexOf(page);
  if (index < 0)
    return;
  pages_[static_cast<std::size_t>(index)].title = plat::String(title);
  titleChanged(index);
}

const char* MuPager::caption(int index) {
  const Page& page = pages_[static_cast<std::size_t>(index)];
  if (!page.title.isNull())
    return page.title.get();
  return page.element->name() ? page.element->name() : "";
}

const char* MuPager::typeName() {
  return "pager";
}

plat::String MuPager::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Pager\npage %d\n", current_);
  return text.takeString();
}

plat::String MuPager::describeItems() {
  plat::DString text("");
  for (int i = 0; i < childCountOf(); ++i)
    text.appendFormat("%d:%s\n", i, caption(i));
  return text.takeString();
}

bool MuPager::perform(const char* action, const char* argument) {
  if (std::strcmp(action, "select") != 0 || !canPerform(this, false))
    return false;
  setCurrent(argument ? decimalArgument(argument) : -1);
  notify(this, EventChanged);
  return true;
}

} // namespace mui
