#include "mui/MuScroll.h"

#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>

namespace mui {

MuScrollFactory muScrollFactory = nullptr;

namespace {

// What a measure asks a child for along an axis that can scroll: as much as it likes.
constexpr int unbounded = 0x3FFFFFFF;

// The offset that shows [from, to) in a window of `extent` now at `offset`.
int showSpan(int offset, int extent, int from, int to) {
  if (from < offset || to - from > extent)
    return from;
  if (to > offset + extent)
    return to - extent;
  return offset;
}

} // namespace

MuScroll::MuScroll(MuContainer* parent, const char* name, int scrollStyle)
    : MuContainerSingle(parent, name), scrollStyle_(scrollStyle) {}

MuScroll* MuScroll::create(MuContainer* parent, const char* name, int scrollStyle) {
  XN_ASSERT(muScrollFactory);
  MuScroll* scroll = muScrollFactory(parent, name, scrollStyle);
  parent->add(scroll);
  return scroll;
}

Point MuScroll::getScrollPosition() {
  return Point();
}

void MuScroll::setScrollPosition(Point) {}

void MuScroll::setMaxSize(Size size) {
  maxSize_ = size;
}

Size MuScroll::borderSize() {
  return Size();
}

int MuScroll::horizontalBarHeight() {
  return 0;
}

int MuScroll::verticalBarWidth() {
  return 0;
}

Size MuScroll::chromeSize() {
  const Size border = allows(ThinBorder) ? borderSize() : Size();
  Size chrome{2 * border.width, 2 * border.height};
  if (allows(HorizontalBar))
    chrome.height += horizontalBarHeight();
  if (allows(VerticalBar))
    chrome.width += verticalBarWidth();
  return chrome;
}

void MuScroll::add(MuElement* element) {
  MuContainerSingle::add(element);
  layout();
}

int MuScroll::minHeight(int width) {
  const Size chrome = chromeSize();
  MuElement* content = child();
  const int inner = (allows(HorizontalBar) ? unbounded : width) - chrome.width;
  return std::min((content ? content->minHeight(inner) : 0) + chrome.height, maxSize_.height);
}

int MuScroll::minWidth(int height) {
  const Size chrome = chromeSize();
  MuElement* content = child();
  const int inner = (allows(VerticalBar) ? unbounded : height) - chrome.height;
  return std::min((content ? content->minWidth(inner) : 0) + chrome.width, maxSize_.width);
}

Size MuScroll::computeBars(Size& available, bool* horizontal, bool* vertical) {
  MuElement* content = child();
  Size size = available;
  *horizontal = false;
  *vertical = false;
  // Taking room for one bar can make the other necessary, so the vertical
  // bar is tested again once the horizontal one is on.
  const auto testVertical = [&] {
    if (!allows(VerticalBar) || *vertical || content->minHeight(size.width) <= available.height)
      return;
    *vertical = true;
    available.width -= verticalBarWidth();
    if (!*horizontal)
      size.width = available.width;
    size.height = std::max(size.height, content->minHeight(size.width));
  };
  testVertical();
  if (allows(HorizontalBar) && content->minWidth(size.height) > available.width) {
    *horizontal = true;
    available.height -= horizontalBarHeight();
    if (!*vertical)
      size.height = available.height;
    size.width = std::max(size.width, content->minWidth(size.height));
  }
  testVertical();
  return size;
}

void MuScroll::layout() {
  MuElement* content = child();
  if (!content)
    return;
  const Size border = allows(ThinBorder) ? borderSize() : Size();
  const Size size = getSize();
  Size available{size.width - 2 * border.width, size.height - 2 * border.height};
  bool horizontal;
  bool vertical;
  const Size contentSize = computeBars(available, &horizontal, &vertical);
  visible_ = available;
  setBars(horizontal, vertical, contentSize, available);
  const Point position = getScrollPosition();
  content->setPosition(position.negate());
  content->setSize(contentSize);
  content->invalidate(Rect::at({0, 0}, contentSize));
}

void MuScroll::scrollToShow(Rect rect) {
  const Point position = getScrollPosition();
  setScrollPosition({showSpan(position.x, visible_.width, rect.tl.x, rect.br.x),
                     showSpan(position.y, visible_.height, rect.tl.y, rect.br.y)});
  layout();
}

const char* MuScroll::typeName() {
  return "scroll";
}

plat::String MuScroll::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Scroll\nstyle %d\n", scrollStyle_);
  return text.takeString();
}

} // namespace mui
