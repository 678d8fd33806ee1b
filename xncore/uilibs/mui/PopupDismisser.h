// mui::PopupDismisser: what hides a popup when the user turns elsewhere. While
// the popup is shown, a press of any mouse button outside it hides it, and so
// does the loss of its owner's focus or of the popup's activation. The
// binding feeds it every press of the thread, as a message hook would, for as
// long as the dismisser exists, and tells it where the press landed.
#pragma once

namespace mui {

class MuDialog;

class PopupDismisser {
public:
  /// Where a press landed: in the popup's window or one of its children, on
  /// the owner's own control (a superbox's edit), or anywhere else.
  enum Place { InPopup, OnOwner, Elsewhere };

  explicit PopupDismisser(MuDialog* popup) noexcept : popup_(popup) {}

  /// A press of any mouse button at `place`. True when the press must not
  /// reach its target: one on the owner's control that closed the popup.
  bool pressed(Place place);
  /// Hides the popup if it is shown, as when the owner's control lost the
  /// keyboard focus or the popup its activation; false when it was hidden.
  bool dismiss();

private:
  MuDialog* popup_;
};

} // namespace mui
