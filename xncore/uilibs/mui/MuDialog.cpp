#include "mui/MuDialog.h"

#include "mui/Keys.h"
#include "mui/Mui.h"
#include "os/AppLoop.h"
#include "os/Window.h"
#include "plat/Assertion.h"
#include "plat/DString.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>

namespace mui {

MuDialogFactory muDialogFactory = nullptr;

// One CodeModal run of the loop, on the stack of the showing. A showing that
// starts while an earlier run of the same dialog still unwinds stands in
// front of it. A dialog destroyed during its own run marks its runs, so that
// nothing touches it once they return.
struct MuDialog::ModalRun {
  bool running = true;
  bool destroyed = false;
  ModalRun* previous = nullptr;
};

namespace {

bool isOfType(MuElement* element, std::initializer_list<const char*> types) {
  return element && std::any_of(types.begin(), types.end(), [element](const char* type) {
           return std::strcmp(element->typeName(), type) == 0;
         });
}

class MoveCallbackExceptButtons : public MuDialog::MoveCallback {
public:
  bool canMove(MuDialog*, MuElement* element, Point*) override {
    return !isOfType(element, {"button"});
  }
};

class MoveCallbackExceptControls : public MuDialog::MoveCallback {
public:
  bool canMove(MuDialog*, MuElement* element, Point*) override {
    return !isOfType(element, {"button", "list", "check"});
  }
};

} // namespace

MuDialog::MoveCallback* MuDialog::moveCallbackExceptButtons() {
  static MoveCallbackExceptButtons callback;
  return &callback;
}

MuDialog::MoveCallback* MuDialog::moveCallbackExceptControls() {
  static MoveCallbackExceptControls callback;
  return &callback;
}

MuDialog::Registration::Registration(MuDialog* dialog) : dialog_(dialog) {
  Mui::instance().registerDialog(dialog_, true);
}

MuDialog::Registration::~Registration() {
  if (Mui* mui = Mui::instanceOrNull())
    mui->registerDialog(dialog_, false);
}

MuDialog::MuDialog(const char* name, const Size* size, int style, MuDialog* parentDialog,
                   os::Window* parentWindow)
    : MuContainer(nullptr, name), dialogStyle_(style), initialHeight_(size ? size->height : 0),
      margin_(Mui::metric(MetricDialogMargin)),
      parentWindow_(parentDialog ? parentDialog->getWindow() : parentWindow), registration_(this) {
  // Every element's effective style ends here.
  ownStyle();
}

MuDialog::~MuDialog() {
  for (ModalRun* run = modalRun_; run; run = run->previous) {
    run->running = false;
    run->destroyed = true;
  }
  // The window stays until the base destructor, so panels go while it exists.
  if (MuCommon* peer = common(); peer && peer->isVisible()) {
    if (isModal())
      enableParentWindow(true);
    peer->setVisible(false);
  }
  removeAll();
}

MuDialog* MuDialog::create(const char* name, const char* title, const Size* size, int style,
                           MuDialog* parentDialog, os::Window* parentWindow) {
  XN_ASSERT(muDialogFactory);
  return muDialogFactory(name, title, size, style, parentDialog, parentWindow);
}

void MuDialog::setMinimumSize(Size) {}

os::Window* MuDialog::getWindow() {
  return nullptr;
}

void MuDialog::setParentWindow(os::Window* window) {
  parentWindow_ = window;
}

void MuDialog::setButton(int which, MuElement* element) {
  buttons_[which] = element;
}

Size MuDialog::getWindowSize() {
  return getSize();
}

void MuDialog::setClipboardText(const char*) {}

void MuDialog::focusChanged(MuElement*) {}

MuElement* MuDialog::getChild(int index) {
  const int i = resolveIndex(index, static_cast<int>(panels_.size()));
  return i < 0 ? nullptr : panels_[static_cast<std::size_t>(i)].element.get();
}

int MuDialog::childCount() {
  return static_cast<int>(panels_.size());
}

void MuDialog::add(MuElement* element) {
  XN_ASSERT(element);
  adopt(element);
  panels_.push_back({std::unique_ptr<MuElement>(element), PanelMain});
}

std::vector<MuDialog::Panel>::iterator MuDialog::panelOf(MuElement* element) {
  auto& panels = panels_;
  auto i = std::find_if(panels.begin(), panels.end(),
                        [element](const Panel& panel) { return panel.element.get() == element; });
  XN_ASSERT(i != panels.end());
  return i;
}

void MuDialog::remove(MuElement* element) {
  auto i = panelOf(element);
  std::unique_ptr<MuElement> doomed = std::move(i->element);
  panels_.erase(i);
}

void MuDialog::removeAll() {
  while (!panels_.empty()) {
    std::unique_ptr<MuElement> doomed = std::move(panels_.back().element);
    panels_.pop_back();
  }
}

void MuDialog::setPanelPosition(MuElement* element, int position) {
  panelOf(element)->position = position;
}

void MuDialog::layout() {
  const Size size = getSize();
  // A minimised window keeps its last arrangement.
  if (size.width == 0 || size.height == 0)
    return;
  int top = 0;
  int bottom = size.height;
  for (Panel& panel : panels_) {
    MuElement* element = panel.element.get();
    if (!element->isVisible() || panel.position == PanelMain)
      continue;
    const int extent = element->minHeight(size.width);
    if (panel.position == PanelTop) {
      element->setPosition({0, top});
      top += extent;
    } else {
      bottom -= extent;
      element->setPosition({0, bottom});
    }
    element->setSize({size.width, extent});
  }
  for (Panel& panel : panels_) {
    MuElement* element = panel.element.get();
    if (!element->isVisible() || panel.position != PanelMain)
      continue;
    element->setPosition({margin_, margin_ + top});
    element->setSize({size.width - 2 * margin_, bottom - 2 * margin_ - top});
  }
  notify(this, EventResized);
}

void MuDialog::fitHeight() {
  if ((dialogStyle_ & AbsFixedSize) || !(dialogStyle_ & (FixedSize | FitHeight)))
    return;
  const int width = getSize().width;
  int total = 0;
  for (Panel& panel : panels_) {
    MuElement* element = panel.element.get();
    if (!element->isVisible())
      continue;
    if (panel.position != PanelMain)
      total += element->minHeight(width);
    else if (dialogStyle_ & FitHeight)
      total += element->minHeight(width - 2 * margin_) + 2 * margin_;
    else
      total += initialHeight_;
  }
  setSize({width, total});
}

void MuDialog::relayout() {
  layout();
  fitHeight();
}

void MuDialog::setVisible(bool show) {
  if (!show) {
    if (!isVisible())
      return;
    if (modalRun_)
      modalRun_->running = false;
    if (isModal())
      enableParentWindow(true);
    mouseReleased();
    showWindow(false);
    return;
  }
  layout();
  fitHeight();
  if (!positioned_ && !isVisible()) {
    if (os::Window* window = getWindow())
      window->centreOn(parentWindow_);
  }
  showWindow(true);
  if (isModal() && parentWindow_)
    enableParentWindow(false);
  if (dialogStyle_ & CodeModal)
    runModal();
}

void MuDialog::runModal() {
  const bool runningCodeModal = this->runningCodeModal();
  XN_ASSERT(!runningCodeModal);
  ModalRun run;
  run.previous = modalRun_;
  modalRun_ = &run;
  os::AppLoop::inst().runNested(run.running);
  if (!run.destroyed)
    modalRun_ = run.previous;
}

bool MuDialog::runningCodeModal() const noexcept {
  return modalRun_ && modalRun_->running;
}

void MuDialog::showWindow(bool show) {
  MuContainer::setVisible(show);
}

void MuDialog::enableParentWindow(bool enable) {
  if (parentWindow_)
    parentWindow_->enable(enable);
}

void MuDialog::captureMouse(bool) {}

bool MuDialog::mousePressed(MuElement* element, Point position, Point screenPosition) {
  if (mouseDownCallback_ && mouseDownCallback_->mouseDown(this))
    return true;
  os::Window* window = getWindow();
  if (!moveCallback_ || !window || window->isMaximised() || window->isMinimised())
    return false;
  Point asked = position;
  if (!moveCallback_->canMove(this, element, &asked))
    return false;
  dragging_ = true;
  dragStart_ = screenPosition;
  dragOrigin_ = window->getRect().tl;
  captureMouse(true);
  return true;
}

void MuDialog::mouseMoved(Point screenPosition) {
  if (!dragging_)
    return;
  // Not setPosition(): a dragged dialog is still centred when it is shown again.
  os::Window* window = getWindow();
  window->setPos(dragOrigin_.translate(screenPosition).translate(dragStart_.negate()));
  window->raise();
}

void MuDialog::mouseReleased() {
  if (!dragging_)
    return;
  dragging_ = false;
  captureMouse(false);
}

void MuDialog::activationChanged(bool active) {
  if (!active) {
    mouseReleased();
    if (dialogStyle_ & DismissOnOutsideClick)
      dismisser_.dismiss();
  }
  notify(this, active ? EventWindowActive : EventWindowInactive);
}

void MuDialog::setPosition(Point position) {
  positioned_ = true;
  MuContainer::setPosition(position);
}

Point MuDialog::getScreenPosition() {
  return getPosition();
}

const char* MuDialog::typeName() {
  return "dialog";
}

plat::String MuDialog::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element Dialog\nfixedsize %d\ndisableclose %d\nnohide %d\nmodal %d\n"
                    "absfixedsize %d\n",
                    (dialogStyle_ & FixedSize) ? 1 : 0, (dialogStyle_ & DisableClose) ? 1 : 0,
                    (dialogStyle_ & NoHide) ? 1 : 0, isModal() ? 1 : 0,
                    (dialogStyle_ & AbsFixedSize) ? 1 : 0);
  return text.takeString();
}

bool MuDialog::activate(int which) {
  if (activateCallback_ && activateCallback_->activate(which, this))
    return true;
  MuElement* element = buttons_[which];
  if (!element || !element->isOperable())
    return false;
  element->notify(element, EventClicked);
  return true;
}

bool MuDialog::keyToButton(int keysym, int* which) {
  switch (normaliseKey(keysym)) {
  case KeyReturn:
    *which = DefaultButton;
    return true;
  case KeyEscape:
    *which = CancelButton;
    return true;
  default:
    return false;
  }
}

bool MuDialog::activateByKey(int keysym) {
  int which;
  return keyToButton(keysym, &which) && activate(which);
}

void MuDialog::userClose() {
  if (closeCallback_ && !closeCallback_->closing(this))
    return;
  setVisible(false);
  notify(this, EventClosed);
}

} // namespace mui
