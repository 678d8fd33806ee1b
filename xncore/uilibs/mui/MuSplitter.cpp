#include "mui/MuSplitter.h"

#include "mui/MeasurePass.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>

namespace mui {

MuSplitterFactory muSplitterFactory = nullptr;

MuSplitter::MuSplitter(MuContainer* parent, const char* name, int orientation, int separatorStyle,
                       bool fixed)
    : MuContainer(parent, name), orientation_(orientation), separatorStyle_(separatorStyle),
      fixed_(fixed) {}

MuSplitter::~MuSplitter() = default;

MuSplitter* MuSplitter::create(MuContainer* parent, const char* name, int orientation,
                               int separatorStyle, bool fixed) {
  XN_ASSERT(muSplitterFactory);
  MuSplitter* splitter = muSplitterFactory(parent, name, orientation, separatorStyle, fixed);
  parent->add(splitter);
  return splitter;
}

int MuSplitter::separatorSize() {
  return separatorStyle_ != Wide ? 3 : 5;
}

void MuSplitter::setPaneVisible(bool visible, int index) {
  panes_[static_cast<std::size_t>(index)].element->setVisible(visible);
  layout();
}

MuElement* MuSplitter::getChild(int index) {
  const int i = resolveIndex(index, static_cast<int>(panes_.size()));
  return i < 0 ? nullptr : panes_[static_cast<std::size_t>(i)].element.get();
}

int MuSplitter::childCount() {
  return static_cast<int>(panes_.size());
}

int MuSplitter::minimumAlong(MuElement* element) {
  const Size size = getSize();
  return orientation_ == SideBySide ? element->minWidth(size.height)
                                    : element->minHeight(size.width);
}

void MuSplitter::add(MuElement* element) {
  XN_ASSERT(element);
  adopt(element);
  panes_.push_back({30, 30, std::unique_ptr<MuElement>(element)});
  MeasurePass::invalidate();
  notify(this, EventChanged);
  layout();
  const int minimum = minimumAlong(element);
  setPaneSizes(static_cast<int>(panes_.size()) - 1, minimum, minimum);
}

void MuSplitter::remove(MuElement* element) {
  const auto i = std::find_if(panes_.begin(), panes_.end(), [element](const Pane& pane) {
    return pane.element.get() == element;
  });
  XN_ASSERT(i != panes_.end());
  std::unique_ptr<MuElement> doomed = std::move(i->element);
  panes_.erase(i);
  doomed.reset();
  MeasurePass::invalidate();
  notify(this, EventChanged);
  layout();
}

void MuSplitter::removeAll() {
  while (!panes_.empty())
    panes_.pop_back();
  MeasurePass::invalidate();
}

void MuSplitter::setPaneSize(int size, int index) {
  Pane& pane = panes_[static_cast<std::size_t>(index)];
  pane.size = std::max(size, pane.minSize);
  layout();
  notify(this, EventChanged);
}

void MuSplitter::setPaneSizes(int index, int min, int size) {
  Pane& pane = panes_[static_cast<std::size_t>(index)];
  pane.minSize = min;
  pane.size = std::max(size, min);
  notify(this, EventChanged);
  layout();
}

void MuSplitter::layout() {
  const Size size = getSize();
  const int total = along(size);
  const int across = orientation_ == SideBySide ? size.height : size.width;
  const int separator = separatorSize();
  const bool shown = isShown();
  int last = -1;
  int need = 0;
  for (std::size_t i = 0; i < panes_.size(); ++i) {
    if (panes_[i].element->isVisible()) {
      last = static_cast<int>(i);
      need += panes_[i].minSize + separator;
    }
  }
  int position = 0;
  for (int i = 0; i <= last; ++i) {
    Pane& pane = panes_[static_cast<std::size_t>(i)];
    if (!pane.element->isVisible())
      continue;
    int extent = i == last ? total - position : pane.size;
    if (shown && !fixed_ && total >= need) {
      // The panes after this one keep at least their least sizes.
      int after = 0;
      for (int j = i + 1; j <= last; ++j) {
        if (panes_[static_cast<std::size_t>(j)].element->isVisible())
          after += panes_[static_cast<std::size_t>(j)].minSize + separator;
      }
      const int limit = total - position - after;
      if (limit < extent) {
        extent = std::max(limit, pane.minSize);
        pane.size = extent;
        notify(this, EventChanged);
      }
    }
    if (orientation_ == SideBySide) {
      pane.element->setSize({extent, across});
      pane.element->setPosition({position, 0});
    } else {
      pane.element->setSize({across, extent});
      pane.element->setPosition({0, position});
    }
    position += extent + separator;
  }
}

int MuSplitter::measureAlong() {
  if (panes_.empty())
    return 0;
  int sum = (childCount() - 1) * separatorSize();
  for (const Pane& pane : panes_)
    sum += fixed_ ? pane.minSize : pane.size;
  return sum;
}

int MuSplitter::measureAcross() {
  int largest = 0;
  for (Pane& pane : panes_) {
    MuElement* element = pane.element.get();
    largest = std::max(largest,
                       orientation_ == SideBySide ? element->minHeight(-1) : element->minWidth(-1));
  }
  return largest;
}

int MuSplitter::minWidth(int) {
  return orientation_ == SideBySide ? measureAlong() : measureAcross();
}

int MuSplitter::minHeight(int) {
  return orientation_ == Stacked ? measureAlong() : measureAcross();
}

void MuSplitter::contentChanged() {
  for (std::size_t i = 0; i < panes_.size(); ++i) {
    Pane& pane = panes_[i];
    pane.minSize = minimumAlong(pane.element.get());
    pane.size = std::max(pane.size, pane.minSize);
    notify(this, EventChanged);
    layout();
  }
  layout();
  if (MuContainer* above = parent())
    above->contentChanged();
}

std::vector<int> MuSplitter::getPaneSizes() {
  std::vector<int> sizes;
  for (const Pane& pane : panes_)
    sizes.push_back(pane.element->isVisible() ? pane.size : 0);
  return sizes;
}

std::vector<int> MuSplitter::getSeparatorPositions() {
  std::vector<int> positions;
  for (int i = 0; i + 1 < childCount(); ++i)
    positions.push_back(separatorPosition(i));
  return positions;
}

// The two checks keep the spellings by which each operation has always
// reported a bad index.
void MuSplitter::checkSeparatorIndex(int index, bool firstSpelling) {
  const auto& children = panes_;
  XN_ASSERT(index >= 0);
  // clang-format off
  if (firstSpelling)
    XN_ASSERT(index < (int)children.size() -1);
  else
    XN_ASSERT(index < (int)children.size() - 1);
  // clang-format on
}

int MuSplitter::separatorPosition(int index) {
  checkSeparatorIndex(index, true);
  int position = 0;
  for (int i = 0; i <= index; ++i) {
    MuElement* element = panes_[static_cast<std::size_t>(i)].element.get();
    if (element->isVisible())
      position = along(element->getPosition()) + along(element->getSize());
  }
  return position;
}

int MuSplitter::separatorThickness(int index) {
  checkSeparatorIndex(index, false);
  return panes_[static_cast<std::size_t>(index)].element->isVisible() ? separatorSize() : 0;
}

int MuSplitter::indexAt(int position) {
  for (int i = 0; i + 1 < childCount(); ++i) {
    const int start = separatorPosition(i);
    if (position >= start && position < start + separatorThickness(i))
      return i;
  }
  return -1;
}

bool MuSplitter::mouseEvent(const xnutil::MouseEvent& event) {
  const int at = along(event.position);
  if (event.type != xnutil::MouseEvent::Leave && !dragging_)
    hoverIndex_ = indexAt(at);
  switch (event.type) {
  case xnutil::MouseEvent::ButtonDown:
    if (hoverIndex_ < 0)
      break;
    dragging_ = true;
    dragStart_ = at;
    dragStartSize_ = panes_[static_cast<std::size_t>(hoverIndex_)].size;
    beginDrag();
    return true;
  case xnutil::MouseEvent::ButtonUp:
    if (!dragging_)
      break;
    dragging_ = false;
    endDrag();
    hoverIndex_ = -1;
    return true;
  case xnutil::MouseEvent::Move: {
    if (!dragging_) {
      hover(event.position);
      break;
    }
    Pane& pane = panes_[static_cast<std::size_t>(hoverIndex_)];
    const int wanted = dragStartSize_ + at - dragStart_;
    if (wanted != pane.size) {
      pane.size = std::max(pane.minSize, wanted);
      layout();
      notify(this, EventChanged);
      invalidate(Rect::at({0, 0}, getSize()));
    }
    return true;
  }
  default:
    break;
  }
  return MuContainer::mouseEvent(event);
}

void MuSplitter::beginDrag() {}

void MuSplitter::endDrag() {}

void MuSplitter::hover(Point) {}

const char* MuSplitter::typeName() {
  return "splitter";
}

plat::String MuSplitter::describe() {
  plat::DString text(describeCommon().get());
  text.append("element Splitter\n\n");
  return text.takeString();
}

} // namespace mui
