#include "mui/headless/MuCommonHeadless.h"

#include "mui/MuContainer.h"
#include "mui/MuDialog.h"
#include "mui/headless/TextModelHeadless.h"
#include "plat/DString.h"

#include <algorithm>

namespace mui {

namespace {

MuCommonHeadless* focusHolder = nullptr;

std::string pointText(const char* operation, int a, int b) {
  return plat::strFormat("%s %d,%d", operation, a, b).get();
}

std::string rectText(const char* operation, Rect rect) {
  return plat::strFormat("%s %d,%d,%d,%d", operation, static_cast<int>(rect.tl.x),
                         static_cast<int>(rect.tl.y), static_cast<int>(rect.br.x),
                         static_cast<int>(rect.br.y))
      .get();
}

void collectPeers(MuElement* element, std::vector<MuCommonHeadless*>& peers) {
  if (MuCommonHeadless* peer = MuCommonHeadless::of(element))
    peers.push_back(peer);
  if (auto* container = dynamic_cast<MuContainer*>(element)) {
    for (int i = 0, n = container->childCount(); i < n; ++i)
      collectPeers(container->getChild(i), peers);
  }
}

} // namespace

MuCommonHeadless::MuCommonHeadless(MuElement* element, Traits traits)
    : element_(element), traits_(traits), visible_(traits.startsVisible), text_(element->label()) {}

MuCommonHeadless::~MuCommonHeadless() {
  if (focusHolder == this)
    focusHolder = nullptr;
}

MuCommonHeadless* MuCommonHeadless::of(MuElement* element) {
  return element ? dynamic_cast<MuCommonHeadless*>(element->common()) : nullptr;
}

MuCommonHeadless* MuCommonHeadless::focused() noexcept {
  return focusHolder;
}

void MuCommonHeadless::setVisible(bool show) {
  record(show ? "setVisible 1" : "setVisible 0");
  visible_ = show;
}

void MuCommonHeadless::setEnabled(bool enabled) {
  record(enabled ? "setEnabled 1" : "setEnabled 0");
  if (!enabled && hasFocus())
    focusNext();
  enabled_ = enabled;
}

bool MuCommonHeadless::acceptsInput() {
  return enabled_ && element_->isShown();
}

void MuCommonHeadless::setFocus() {
  MuDialog* dialog = element_->rootDialog();
  if (!dialog || !(dialog->isVisible() || dialog->runningCodeModal()) || !traits_.focusable ||
      !enabled_)
    return;
  record("setFocus");
  focusHolder = this;
}

bool MuCommonHeadless::hasFocus() {
  return focusHolder == this;
}

void MuCommonHeadless::focusNext() {
  std::vector<MuCommonHeadless*> peers;
  if (MuDialog* dialog = element_->rootDialog())
    collectPeers(dialog, peers);
  auto self = std::find(peers.begin(), peers.end(), this);
  const std::size_t start =
      self == peers.end() ? 0 : static_cast<std::size_t>(self - peers.begin());
  focusHolder = nullptr;
  for (std::size_t step = 1; step < peers.size(); ++step) {
    MuCommonHeadless* candidate = peers[(start + step) % peers.size()];
    if (candidate->traits_.focusable && candidate->enabled_ && candidate->element_->isShown()) {
      focusHolder = candidate;
      return;
    }
  }
}

void MuCommonHeadless::setToolTip(const char* text) {
  record(std::string("setToolTip ") + (text ? text : "(null)"));
  toolTip_ = plat::String(text);
}

void MuCommonHeadless::setSize(Size size) {
  record(pointText("setSize", size.width, size.height));
  size_ = size;
}

int MuCommonHeadless::minWidth(int) {
  return TextModelHeadless(element_->effectiveStyle(), traits_.mnemonics).width(text());
}

int MuCommonHeadless::minHeight(int width) {
  return TextModelHeadless(element_->effectiveStyle(), traits_.mnemonics)
      .height(text(), width, traits_.singleLine);
}

void MuCommonHeadless::setPosition(Point position) {
  record(pointText("setPosition", position.x, position.y));
  position_ = position;
}

void MuCommonHeadless::styleChanged() {
  record("styleChanged");
}

void MuCommonHeadless::scrollIntoView(Rect rect) {
  record(rectText("scrollIntoView", rect));
}

void MuCommonHeadless::invalidate(Rect rect) {
  record(rectText("invalidate", rect));
}

} // namespace mui
