#include "mui/PopupDismisser.h"

#include "mui/MuDialog.h"

namespace mui {

bool PopupDismisser::dismiss() {
  if (!popup_->isVisible())
    return false;
  popup_->setVisible(false);
  return true;
}

bool PopupDismisser::pressed(Place place) {
  if (place == InPopup)
    return false;
  // A press on the owner's control that closes the popup must not open it again.
  return dismiss() && place == OnOwner;
}

} // namespace mui
