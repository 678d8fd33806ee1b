#include "mui/MuElement.h"

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "mui/MuDialog.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>

namespace mui {

// One delivery of an event on one element. Records of nested deliveries on
// the same element form a chain, so that the element's destructor and
// removeObserver() can reach every delivery in progress.
struct MuElement::Notification {
  std::vector<MuObserver*> pending;
  std::size_t next = 0;
  Notification* previous = nullptr;
  bool destroyed = false;

  void removePending(MuObserver* observer) {
    pending.erase(
        std::remove(pending.begin() + static_cast<std::ptrdiff_t>(next), pending.end(), observer),
        pending.end());
  }
};

MuElement::MuElement(MuContainer* parent, const char* name, const char* label)
    : label_(label), name_(name), parent_(parent) {}

MuElement::~MuElement() {
  for (Notification* record = activeNotification_; record; record = record->previous) {
    record->pending.clear();
    record->next = 0;
    record->destroyed = true;
  }
  common_.reset();
  style_.reset();
}

void MuElement::setCommon(std::unique_ptr<MuCommon> common) {
  common_ = std::move(common);
}

void MuElement::setVisible(bool show) {
  MeasurePass::invalidate();
  if (common_)
    common_->setVisible(show);
}

bool MuElement::isVisible() {
  return common_ && common_->isVisible();
}

bool MuElement::isLocked() {
  return (flags_ & Locked) != 0;
}

void MuElement::setFocus() {
  if (common_)
    common_->setFocus();
  if (MuDialog* dialog = rootDialog())
    dialog->focusChanged(this);
}

bool MuElement::hasFocus() {
  return common_ && common_->hasFocus();
}

MuElement* MuElement::focusedElement() {
  return hasFocus() ? this : nullptr;
}

void MuElement::setToolTip(const char* text) {
  if (common_)
    common_->setToolTip(text);
}

void MuElement::setSize(Size size) {
  if (common_)
    common_->setSize(size);
}

Size MuElement::getSize() {
  return common_ ? common_->getSize() : Size();
}

void MuElement::setPosition(Point position) {
  if (common_)
    common_->setPosition(position);
}

Point MuElement::getPosition() {
  return common_ ? common_->getPosition() : Point();
}

Point MuElement::getScreenPosition() {
  MuContainer* parent = parent_;
  XN_ASSERT(parent);
  return parent->getScreenPosition().translate(getPosition());
}

int MuElement::minWidth(int height) {
  return common_ ? common_->minWidth(height) : 0;
}

int MuElement::minHeight(int width) {
  return common_ ? common_->minHeight(width) : 0;
}

void MuElement::setStyle(const MuStyle& style) {
  ownStyle() = style;
  styleChanged();
}

void MuElement::styleChanged() {
  if (common_)
    common_->styleChanged();
}

void MuElement::scrollIntoView(Rect rect) {
  if (common_)
    common_->scrollIntoView(rect);
}

void MuElement::invalidate(Rect rect) {
  if (common_)
    common_->invalidate(rect);
}

void MuElement::setLabelLayout(int, int) {}

int MuElement::labelWidth() {
  return minWidth(1);
}

const char* MuElement::typeName() {
  return "element";
}

plat::String MuElement::describe() {
  return describeCommon();
}

plat::String MuElement::describeItems() {
  return plat::String("");
}

MuElement* MuElement::find(const char* path) {
  return path ? nullptr : this;
}

void MuElement::relayout() {}

bool MuElement::perform(const char*, const char*) {
  return false;
}

void MuElement::checkOverflow(OverflowReporter& reporter) {
  const Size size = getSize();
  const int needed = minHeight(size.width);
  if (size.height < needed)
    reporter.report(this, plat::strFormat("Overflowing by %d units", needed - size.height).get());
}

void MuElement::stateChanged() {}

bool MuElement::mouseEvent(const xnutil::MouseEvent& event) {
  return mouseCallback_ && mouseCallback_->mouseEvent(event);
}

void MuElement::addObserver(MuObserver* observer) {
  observers_.push_back(observer);
}

void MuElement::removeObserver(MuObserver* observer) {
  observers_.erase(std::remove(observers_.begin(), observers_.end(), observer), observers_.end());
  for (Notification* record = activeNotification_; record; record = record->previous)
    record->removePending(observer);
}

void MuElement::notify(MuElement* source, int event) {
  // Observers may change what elements measure, even inside a layout pass.
  MeasurePass::invalidate();
  for (MuElement* element = this; element;) {
    Notification record;
    record.pending = element->observers_;
    record.previous = element->activeNotification_;
    element->activeNotification_ = &record;
    try {
      while (record.next < record.pending.size()) {
        MuObserver* observer = record.pending[record.next++];
        observer->handleEvent(source, event);
      }
    } catch (...) {
      if (!record.destroyed)
        element->activeNotification_ = record.previous;
      throw;
    }
    // The element is gone: neither it nor its ancestors may be touched.
    if (record.destroyed)
      return;
    element->activeNotification_ = record.previous;
    element = element->parent_;
  }
}

void MuElement::setFlag(int flag, bool on) {
  flags_ = on ? (flags_ | flag) : (flags_ & ~flag);
  if (common_)
    common_->setEnabled(flags_ == 0);
  stateChanged();
}

void MuElement::setEnabled(bool enabled) {
  setFlag(Disabled, !enabled);
}

void MuElement::setLocked(bool locked) {
  setFlag(Locked, locked);
}

bool MuElement::isShown() {
  for (MuElement* element = this; element; element = element->parent_) {
    if (!element->isVisible())
      return false;
  }
  return true;
}

plat::String MuElement::fullName() {
  if (!parent_)
    return plat::String();
  plat::String above = parent_->fullName();
  if (name_.isNull())
    return above;
  plat::DString path(above.get());
  if (path.length() > 0)
    path.append(".");
  path.append(name_.get());
  return path.takeString();
}

MuDialog* MuElement::rootDialog() {
  MuElement* element = this;
  while (element->parent_)
    element = element->parent_;
  return dynamic_cast<MuDialog*>(element);
}

MuStyle& MuElement::ownStyle() {
  if (!style_)
    style_ = std::make_unique<MuStyle>();
  return *style_;
}

const MuStyle& MuElement::effectiveStyle() {
  for (MuElement* element = this; !element->style_;) {
    MuContainer* parent = element->parent_;
    XN_ASSERT(parent);
    element = parent;
    if (element->style_)
      return *element->style_;
  }
  return *style_;
}

void MuElement::setTextColour(const char* name) {
  ownStyle().textColour = plat::String(name);
  styleChanged();
}

void MuElement::setBackgroundColour(const char* name) {
  ownStyle().backgroundColour = plat::String(name);
  styleChanged();
}

void MuElement::setFontSize(int size) {
  ownStyle().fontSize = size;
  styleChanged();
}

plat::String MuElement::describeCommon() {
  const Point position = getPosition();
  const Size size = getSize();
  plat::DString text;
  text.appendFormat("shown %d\nenabled %d\nlocked %d\npos %d,%d\nsize %d,%d\n", isShown() ? 1 : 0,
                    (flags_ & Disabled) ? 0 : 1, (flags_ & Locked) ? 1 : 0,
                    static_cast<int>(position.x), static_cast<int>(position.y),
                    static_cast<int>(size.width), static_cast<int>(size.height));
  if (!label_.isNull())
    text.appendFormat("label %s\n", escapeForDescribe(label_.get()).get());
  return text.takeString();
}

plat::String escapeForDescribe(const char* text) {
  plat::DString out("");
  const char* run = text;
  for (const char* p = text; *p; ++p) {
    const char* escape = *p == '\n' ? "\\n" : *p == '\r' ? "\\r" : *p == '\\' ? "\\\\" : nullptr;
    if (!escape)
      continue;
    out.append(run, static_cast<int>(p - run));
    out.append(escape);
    run = p + 1;
  }
  out.append(run);
  return out.takeString();
}

} // namespace mui
