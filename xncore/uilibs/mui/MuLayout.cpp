#include "mui/MuLayout.h"

#include "mui/MuSpacer.h"
#include "mui/Mui.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>

namespace mui {

MuLayoutFactory muLayoutFactory = nullptr;

namespace {

// Products of sizes and weights may pass 32 bits on the way; the quotient does not.
int scaleShare(int share, int room, int total) {
  if (total == 0)
    return 0;
  return static_cast<int>(static_cast<long long>(share) * room / total);
}

} // namespace

MuLayout::MuLayout(MuContainer* parent, const char* name, int orientation)
    : MuContainer(parent, name), orientation_(orientation), spacing_(Mui::metric(MetricSpacing)) {}

MuLayout::~MuLayout() {
  removeAll();
}

MuLayout* MuLayout::create(MuContainer* parent, const char* name, int orientation) {
  XN_ASSERT(muLayoutFactory);
  MuLayout* layout = muLayoutFactory(parent, name, orientation);
  parent->add(layout);
  return layout;
}

MuElement* MuLayout::getChild(int index) {
  const int i = resolveIndex(index, static_cast<int>(children_.size()));
  return i < 0 ? nullptr : children_[static_cast<std::size_t>(i)].element.get();
}

int MuLayout::childCount() {
  return static_cast<int>(children_.size());
}

void MuLayout::add(MuElement* element) {
  XN_ASSERT(element);
  MeasurePass::invalidate();
  adopt(element);
  children_.push_back({std::unique_ptr<MuElement>(element), defaultMode_, 1});
}

std::vector<MuLayout::Entry>::iterator MuLayout::entryOf(MuElement* element) {
  return std::find_if(children_.begin(), children_.end(),
                      [element](const Entry& entry) { return entry.element.get() == element; });
}

void MuLayout::notAChild(MuElement* element, const char* file, int line) {
  plat::AssertionFail fail("i != children.end()", file, line);
  fail.addDetail("Element '%s' is not a child of '%s'", element->fullName().orEmpty(),
                 fullName().orEmpty());
  plat::assertionFailed(fail);
}

void MuLayout::remove(MuElement* element) {
  auto i = entryOf(element);
  if (i == children_.end())
    notAChild(element, __FILE__, __LINE__);
  MeasurePass::invalidate();
  // The entry goes first, so that the child's destructor finds a consistent layout.
  std::unique_ptr<MuElement> doomed = std::move(i->element);
  children_.erase(i);
}

void MuLayout::removeAll() {
  MeasurePass::invalidate();
  while (!children_.empty()) {
    std::unique_ptr<MuElement> doomed = std::move(children_.back().element);
    children_.pop_back();
  }
}

void MuLayout::setChildLayout(MuElement* child, int mode, int size) {
  auto i = entryOf(child);
  if (i == children_.end())
    notAChild(child, __FILE__, __LINE__);
  MeasurePass::invalidate();
  i->mode = mode;
  i->size = size;
}

bool MuLayout::childLayout(MuElement* child, int* mode, int* size) {
  auto i = entryOf(child);
  if (i == children_.end())
    return false;
  *mode = i->mode;
  *size = i->size;
  return true;
}

void MuLayout::orderChanged() {}

void MuLayout::setSpacing(int spacing) noexcept {
  MeasurePass::invalidate();
  spacing_ = spacing;
}

void MuLayout::moveChild(MuElement* element, int where, MuElement* reference) {
  auto i = entryOf(element);
  if (i == children_.end())
    notAChild(element, __FILE__, __LINE__);
  Entry entry = std::move(*i);
  children_.erase(i);
  auto at = children_.end();
  if (where == ToFront) {
    at = children_.begin();
  } else if (where == Before || where == After) {
    at = entryOf(reference);
    if (at != children_.end() && where == After)
      ++at;
  }
  children_.insert(at, std::move(entry));
  MeasurePass::invalidate();
  orderChanged();
  layout();
}

MuSpacer* MuLayout::addSection(bool stretch) {
  MuSpacer* spacer = MuSpacer::create(this, 0, 0);
  setChildLayout(spacer, Fixed, Mui::metric(MetricSectionGap) - spacing_);
  if (stretch)
    defaultMode_ = Weighted;
  return spacer;
}

int MuLayout::minMain(MuElement* child, int crossExtent) {
  return vertical() ? child->minHeight(crossExtent) : child->minWidth(crossExtent);
}

int MuLayout::minCross(MuElement* child, int mainExtent) {
  return vertical() ? child->minWidth(mainExtent) : child->minHeight(mainExtent);
}

void MuLayout::setSize(Size size) {
  MuContainer::setSize(size);
}

void MuLayout::layout() {
  MeasurePass pass;
  const Size size = getSize();
  const int mainExtent = vertical() ? size.height : size.width;
  const int crossExtent = vertical() ? size.width : size.height;

  // First the totals: natural children are measured and remembered in their entry.
  int count = 0;
  int fixed = 0;
  int weights = 0;
  for (Entry& entry : children_) {
    if (!entry.element->isVisible())
      continue;
    ++count;
    const int mode = entry.mode & ModeMask;
    if (mode == Natural)
      entry.size = minMain(entry.element.get(), crossExtent);
    if (mode == Weighted)
      weights += entry.size;
    else
      fixed += entry.size;
  }
  const int gaps = (count - 1) * spacing_;
  const int spare = (mainExtent - gaps) - fixed;

  // Then the placing, one after the other along the main axis.
  int position = 0;
  for (Entry& entry : children_) {
    MuElement* child = entry.element.get();
    if (!child->isVisible())
      continue;
    const int main = (entry.mode & ModeMask) == Weighted
                         ? scaleShare(entry.size, std::max(spare, 0), weights)
                         : entry.size;
    int cross = crossExtent;
    int offset = 0;
    const int placement = entry.mode & PlacementMask;
    if (placement != Fill) {
      // A child that needs more than the layout offers keeps the full extent.
      const int needed = minCross(child, main);
      if (needed < cross) {
        if (placement == AtEnd)
          offset = cross - needed;
        else if (placement == Centred)
          offset = (cross - needed) / 2;
        cross = needed;
      }
    }
    if (vertical()) {
      child->setPosition({offset, position});
      child->setSize({cross, main});
    } else {
      child->setPosition({position, offset});
      child->setSize({main, cross});
    }
    position += main + spacing_;
  }
}

// The least extent along the main axis: weighted children get the least size
// at which each of them fits while all keep their proportions. With no
// visible child this is -spacing_, on purpose: a parent that sums minima gets
// the gap back.
int MuLayout::measureAlong(int crossExtent) {
  int count = 0;
  int total = 0;
  int weights = 0;
  int unit = 0;
  for (Entry& entry : children_) {
    if (!entry.element->isVisible())
      continue;
    ++count;
    switch (entry.mode & ModeMask) {
    case Weighted:
      weights += entry.size;
      if (entry.size != 0)
        unit = std::max(unit, minMain(entry.element.get(), crossExtent) / entry.size);
      break;
    case Natural:
      total += minMain(entry.element.get(), crossExtent);
      break;
    default:
      total += entry.size;
      break;
    }
  }
  return (count - 1) * spacing_ + total + unit * weights;
}

// The least extent across at a given main extent: the widest child, with the
// weighted ones measured at their share of what the others leave.
int MuLayout::measureAcross(int mainExtent) {
  int count = 0;
  int fixed = 0;
  int weights = 0;
  int result = 0;
  for (Entry& entry : children_) {
    if (!entry.element->isVisible())
      continue;
    ++count;
    const int mode = entry.mode & ModeMask;
    if (mode == Weighted) {
      weights += entry.size;
      continue;
    }
    const int extent = mode == Fixed ? entry.size : minMain(entry.element.get(), 0);
    result = std::max(result, minCross(entry.element.get(), extent));
    fixed += extent;
  }
  const int remaining = mainExtent - (count - 1) * spacing_ - fixed;
  for (Entry& entry : children_) {
    if (entry.element->isVisible() && (entry.mode & ModeMask) == Weighted) {
      const int extent = scaleShare(entry.size, remaining, weights);
      result = std::max(result, minCross(entry.element.get(), extent));
    }
  }
  return result;
}

int MuLayout::minWidth(int height) {
  MeasurePass pass;
  int result;
  if (memo_.lookup(MeasureMemo::Width, height, &result))
    return result;
  result = vertical() ? measureAcross(height) : measureAlong(height);
  memo_.store(MeasureMemo::Width, height, result);
  return result;
}

int MuLayout::minHeight(int width) {
  MeasurePass pass;
  int result;
  if (memo_.lookup(MeasureMemo::Height, width, &result))
    return result;
  result = vertical() ? measureAlong(width) : measureAcross(width);
  memo_.store(MeasureMemo::Height, width, result);
  return result;
}

void MuLayout::checkOverflow(OverflowReporter& reporter) {
  const Size size = getSize();
  const int total = vertical() ? size.height : size.width;
  int used = 0;
  for (Entry& entry : children_) {
    MuElement* child = entry.element.get();
    if (!child->isVisible())
      continue;
    const Size childSize = child->getSize();
    const int end = used + (vertical() ? childSize.height : childSize.width);
    if (end > total)
      reporter.report(child, plat::strFormat("Overflowing %s layout by %d units",
                                             vertical() ? "V" : "H", end - total)
                                 .get());
    used = end + spacing_;
  }
  MuContainer::checkOverflow(reporter);
}

const char* MuLayout::typeName() {
  return "layout";
}

plat::String MuLayout::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Layout\ntype %s\n", vertical() ? "Vertical" : "Horizontal");
  return text.takeString();
}

} // namespace mui
