#include "cloudAuth/CloudSsoAddDlg.h"

#include "cloudAuth/GroupUuid.h"
#include "cloudAuth/TextKeys.h"
#include "loc/Localize.h"
#include "mui/MuEdit.h"
#include "mui/MuLayout.h"

namespace cloudAuth {

CloudSsoAddDlg::CloudSsoAddDlg(mui::MuDialog* parent)
    : EntryAddDialog(parent, "cloudssoadd", XN_TEXT(textkey::cloudauth_cloudsso_dialog_title)) {
  groupUuid_ = mui::MuEdit::create(layout_, "groupuuid",
                                   XN_TEXT(textkey::cloudauth_cloudsso_dialog_groupuuid));
  displayName_ = mui::MuEdit::create(layout_, "displayname",
                                     XN_TEXT(textkey::cloudauth_cloudsso_dialog_displayname));
  completeForm(groupUuid_, displayName_);
}

plat::String CloudSsoAddDlg::groupUuid() {
  return groupUuid_->getText();
}

plat::String CloudSsoAddDlg::displayName() {
  return displayName_->getText();
}

bool CloudSsoAddDlg::acceptInput() {
  if (hasInput() && parseGroupUuid(groupUuid().get()))
    return true;
  showError(XN_TEXT(textkey::cloudauth_cloudsso_dialog_invalid_uuid), groupUuid_);
  return false;
}

bool CloudSsoAddDlg::hasInput() {
  return *groupUuid().get() != '\0';
}

bool CloudSsoAddDlg::weighsChange(mui::MuElement* source) {
  return source == groupUuid_;
}

} // namespace cloudAuth
