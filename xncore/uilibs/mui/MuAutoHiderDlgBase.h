// mui::MuAutoHiderDlgBase: the auto-hiding panel as the bindings make it: it
// owns the panel's borderless dialog and the binding's hider, which moves the
// dialog's window. Given a parent window it lays the dialog out, shows it and
// places it on the parent's edge. At the end of a slide into view the dialog
// is laid out again; at the start of a slide away the keyboard focus leaves
// the panel for the parent.
#pragma once

#include "mui/AutoHiderWindow.h"
#include "mui/MuAutoHider.h"

#include <memory>

namespace mui {

class MuAutoHiderDlgBase : public MuAutoHider {
public:
  ~MuAutoHiderDlgBase() override;

  void stateChanged(bool sliding, bool revealed, ui::AutoHider* hider) override;
  MuDialog* getDialog() override { return dialog_.get(); }
  void setParentWindow(os::Window* parent) override;
  void setMargin(int margin) override { dialog_->setMargin(margin); }
  void setButton(int which, MuElement* element) override { dialog_->setButton(which, element); }
  void setMouseDownCallback(MuDialog::MouseDownCallback* callback) override {
    dialog_->setMouseDownCallback(callback);
  }
  os::Window* getWindow() override { return dialog_->getWindow(); }

  AutoHiderWindow* hiderWindow() const noexcept { return hiderWindow_.get(); }

protected:
  /// Makes the panel's dialog, hidden, with a border and no caption.
  MuAutoHiderDlgBase(const char* name, const Size* size, ui::AutoHider::Callback* callback);
  /// Takes the binding's hider, made with this object as its callback, and
  /// gives it the dialog's window.
  void attachHider(std::unique_ptr<AutoHiderWindow> hider);

private:
  std::unique_ptr<MuDialog> dialog_;
  // Goes before the dialog, so that no step of a slide finds the window gone.
  std::unique_ptr<AutoHiderWindow> hiderWindow_;
};

} // namespace mui
