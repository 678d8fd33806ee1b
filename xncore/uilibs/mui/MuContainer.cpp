#include "mui/MuContainer.h"

#include "plat/Assertion.h"

#include <cstring>

namespace mui {

void MuContainer::contentChanged() {
  layout();
  if (MuContainer* above = parent())
    above->contentChanged();
}

Point MuContainer::getOrigin() {
  return Point();
}

void MuContainer::layout() {}

void MuContainer::removeAll() {}

bool MuContainer::isLocked() {
  if (MuElement::isLocked())
    return true;
  for (int i = 0, n = childCount(); i < n; ++i) {
    MuElement* child = getChild(i);
    if (child->isVisible() && child->isLocked())
      return true;
  }
  return false;
}

MuElement* MuContainer::focusedElement() {
  for (int i = 0, n = childCount(); i < n; ++i) {
    if (MuElement* focused = getChild(i)->focusedElement())
      return focused;
  }
  return nullptr;
}

void MuContainer::setSize(Size size) {
  MuElement::setSize(size);
  layout();
}

void MuContainer::styleChanged() {
  for (int i = 0, n = childCount(); i < n; ++i)
    getChild(i)->styleChanged();
  MuElement::styleChanged();
}

MuElement* MuContainer::find(const char* path) {
  if (!path)
    return this;
  const char* dot = std::strchr(path, '.');
  const plat::String head =
      dot ? plat::strDup(path, static_cast<int>(dot - path)) : plat::String(path);
  const char* rest = dot ? dot + 1 : nullptr;
  for (int i = 0, n = childCount(); i < n; ++i) {
    MuElement* child = getChild(i);
    MuElement* hit = nullptr;
    if (!child->name())
      hit = child->find(path); // unnamed containers vanish from paths
    else if (std::strcmp(child->name(), head.get()) == 0)
      hit = child->find(rest);
    if (hit)
      return hit;
  }
  return nullptr;
}

void MuContainer::relayout() {
  layout();
}

void MuContainer::checkOverflow(OverflowReporter& reporter) {
  for (int i = 0, n = childCount(); i < n; ++i) {
    MuElement* child = getChild(i);
    if (child->isVisible())
      child->checkOverflow(reporter);
  }
}

const char* MuContainer::typeName() {
  return "container";
}

void MuContainer::removeChild(MuElement* element) {
  XN_ASSERT(element);
  remove(element);
}

int MuContainer::resolveIndex(int index, int count) noexcept {
  if (index < 0)
    index += count;
  return index >= 0 && index < count ? index : -1;
}

MuElement* MuContainerSingle::getChild(int index) {
  return index == 0 || index == -1 ? child_.get() : nullptr;
}

int MuContainerSingle::childCount() {
  return child_ ? 1 : 0;
}

void MuContainerSingle::add(MuElement* element) {
  XN_ASSERT(element);
  adopt(element);
  child_.reset(element);
}

void MuContainerSingle::remove(MuElement* element) {
  std::unique_ptr<MuElement>& child = child_;
  XN_ASSERT(element == child.get());
  child_.reset();
}

void MuContainerSingle::removeAll() {
  child_.reset();
}

MuContainerSingle::~MuContainerSingle() {
  child_.reset();
}

} // namespace mui
