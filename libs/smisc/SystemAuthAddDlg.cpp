#include "smisc/SystemAuthAddDlg.h"

#include "loc/Localize.h"
#include "mui/MuChoice.h"
#include "mui/MuEdit.h"
#include "mui/MuLayout.h"
#include "smisc/TextKeys.h"
#include "sysauth/SecurityPrincipal.h"

namespace smisc {

SystemAuthAddDlg::SystemAuthAddDlg(mui::MuDialog* parent)
    : EntryAddDialog(parent, "systemauthadd",
                     XN_TEXT(textkey::smisc_permissionssystemauth_dialog_title)) {
  type_ = mui::MuChoice::create(layout_, "type",
                                XN_TEXT(textkey::smisc_permissionssystemauth_dialog_type), 0);
  name_ = mui::MuEdit::create(layout_, "name",
                              XN_TEXT(textkey::smisc_permissionssystemauth_dialog_name));
  type_->addItem(User, XN_TEXT(textkey::smisc_permissionssystemauth_dialog_type_user));
  type_->addItem(Group, XN_TEXT(textkey::smisc_permissionssystemauth_dialog_type_group));
  type_->setValue(User);
  completeForm(name_, type_);
}

bool SystemAuthAddDlg::isGroup() {
  return type_->getValue() == Group;
}

plat::String SystemAuthAddDlg::id() {
  plat::String typed = name_->getText();
  // Without a resolver a typed name stands as it is.
  return sysauth::nameResolver ? sysauth::nameResolver->canonicalName(typed.get(), isGroup())
                               : typed;
}

bool SystemAuthAddDlg::acceptInput() {
  using Rejection = sysauth::SecurityPrincipal::Rejection;
  sysauth::SecurityPrincipal candidate;
  candidate.id = id();
  candidate.isGroup = isGroup();
  Rejection rejection = Rejection::None;
  if (candidate.validate(nullptr, &rejection))
    return true;
  plat::String typed = name_->getText();
  const char* key = rejection == Rejection::ExpectedGroup
                        ? textkey::smisc_permissionssystemauth_dialog_expected_group
                    : rejection == Rejection::UnexpectedGroup
                        ? textkey::smisc_permissionssystemauth_dialog_unexpected_group
                        : textkey::smisc_permissionssystemauth_dialog_no_account;
  showError(XN_FORMAT(key, typed.get()).get(), name_);
  return false;
}

bool SystemAuthAddDlg::hasInput() {
  return *name_->getText().get() != '\0';
}

bool SystemAuthAddDlg::weighsChange(mui::MuElement*) {
  return true;
}

} // namespace smisc
