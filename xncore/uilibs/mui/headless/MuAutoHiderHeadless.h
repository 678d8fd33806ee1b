// mui::MuAutoHiderHeadless: the auto-hiding panel of the headless binding. Its
// dialog's window stands on the parent window, positioned through the
// binding's window service. There is no message hook to watch the pointer:
// tests tell it where the pointer moved, and it counts the moves of the
// keyboard focus to the parent.
#pragma once

#include "mui/MuAutoHiderDlgBase.h"

namespace mui {

class MuAutoHiderHeadless : public MuAutoHiderDlgBase {
public:
  static MuAutoHider* make(const char* name, const Size* size, int edge, int revealSize,
                           ui::AutoHider::Callback* callback);

  /// The pointer moves over the panel or over the parent's client area.
  void pointerMovedOver(AutoHiderWindow::Place place) { hiderWindow()->pointerMoved(place); }
  /// How often the keyboard focus was sent to the parent window.
  int parentFocusCount() const noexcept { return parentFocusCount_; }

private:
  MuAutoHiderHeadless(const char* name, const Size* size, int edge, int revealSize,
                      ui::AutoHider::Callback* callback);

  int parentFocusCount_ = 0;
};

} // namespace mui
