#include "mui/MuAutoHiderDlgBase.h"

namespace mui {

MuAutoHiderDlgBase::MuAutoHiderDlgBase(const char* name, const Size* size,
                                       ui::AutoHider::Callback* callback)
    : MuAutoHider(callback),
      dialog_(MuDialog::create(name, "", size, MuDialog::Border | MuDialog::DesktopChild, nullptr,
                               nullptr)) {}

MuAutoHiderDlgBase::~MuAutoHiderDlgBase() = default;

void MuAutoHiderDlgBase::attachHider(std::unique_ptr<AutoHiderWindow> hider) {
  hiderWindow_ = std::move(hider);
  hiderWindow_->setWindow(dialog_->getWindow());
  hider_ = hiderWindow_.get();
}

void MuAutoHiderDlgBase::setParentWindow(os::Window* parent) {
  hiderWindow_->setParent(parent);
  if (!parent)
    return;
  dialog_->relayout();
  dialog_->setVisible(true);
  hiderWindow_->applyPosition();
}

void MuAutoHiderDlgBase::stateChanged(bool sliding, bool revealed, ui::AutoHider* hider) {
  if (!sliding && revealed)
    dialog_->relayout();
  else if (sliding && !revealed && hiderWindow_->parent() && dialog_->focusedElement())
    hiderWindow_->focusParent();
  MuAutoHider::stateChanged(sliding, revealed, hider);
}

} // namespace mui
