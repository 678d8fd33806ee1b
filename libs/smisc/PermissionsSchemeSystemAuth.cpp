#include "smisc/PermissionsSchemeSystemAuth.h"

#include "loc/Localize.h"
#include "plat/Exception.h"
#include "smisc/SystemAuthAddDlg.h"
#include "smisc/TextKeys.h"
#include "sui/PermissionsSchemeEditor.h"

#include <cstring>

namespace smisc {

namespace {

const char* imageOf(const sysauth::SecurityPrincipal& principal) {
  return principal.isGroup ? "group" : "user";
}

} // namespace

PermissionsSchemeSystemAuth::PermissionsSchemeSystemAuth(sui::PermissionsSchemeEditor* editor)
    : PrincipalListScheme(editor, "Permissions") {}

PermissionsSchemeSystemAuth::~PermissionsSchemeSystemAuth() = default;

void PermissionsSchemeSystemAuth::activate() {
  plat::String text = startReading();
  try {
    principals_.parse(text.get(), false);
  } catch (const plat::Exception&) {
    principals_.clear();
  }
  listEntries(XN_TEXT(textkey::smisc_permissionssystemauth_add_btn),
              XN_TEXT(textkey::smisc_permissionssystemauth_add_btn_tip),
              XN_TEXT(textkey::smisc_permissionssystemauth_remove_btn),
              XN_TEXT(textkey::smisc_permissionssystemauth_remove_btn_tip));
}

void PermissionsSchemeSystemAuth::buttonClicked(const char* name) {
  if (std::strcmp(name, "add") == 0)
    showAddDialog();
  else if (std::strcmp(name, "remove") == 0)
    removeSelectedEntry();
}

void PermissionsSchemeSystemAuth::showAddDialog() {
  openAddDialog(std::make_unique<SystemAuthAddDlg>(editor_->getDialog()));
}

void PermissionsSchemeSystemAuth::entryAccepted(sui::EntryAddDialog& dialog) {
  auto& typed = static_cast<SystemAuthAddDlg&>(dialog);
  // The dialog checked the name, so this throws only if the account went
  // meanwhile; nothing here catches it.
  addPrincipal(std::make_unique<sysauth::SecurityPrincipal>(
      typed.id().get(), xnauth::Permissions("d"), typed.isGroup(), nullptr));
  editor_->entryAdded();
}

void PermissionsSchemeSystemAuth::addPrincipal(
    std::unique_ptr<sysauth::SecurityPrincipal> principal) {
  int index = principals_.find(principal->id.get(), principal->isGroup);
  if (index < 0) {
    index = principals_.add(std::move(principal));
    editor_->insertEntry(index, entryText(index), entryImage(index));
    writeParameter();
  }
  editor_->selectEntry(index);
}

const char* PermissionsSchemeSystemAuth::entryText(int index) {
  return principals_.at(index).displayNameText();
}

const char* PermissionsSchemeSystemAuth::entryImage(int index) {
  return imageOf(principals_.at(index));
}

void PermissionsSchemeSystemAuth::writeParameter() {
  storeText(principals_.render().get());
}

} // namespace smisc
