#include "cloudAuth/PermissionsSchemeCloudSso.h"

#include "cloudAuth/CloudSsoAddDlg.h"
#include "cloudAuth/CloudSsoEntries.h"
#include "cloudAuth/TextKeys.h"
#include "loc/Localize.h"
#include "sui/PermissionsSchemeEditor.h"

#include <cstring>
#include <memory>

namespace cloudAuth {

PermissionsSchemeCloudSso::PermissionsSchemeCloudSso(sui::PermissionsSchemeEditor* editor,
                                                     const char* parameterName)
    : PrincipalListScheme(editor, parameterName) {}

PermissionsSchemeCloudSso::~PermissionsSchemeCloudSso() = default;

void PermissionsSchemeCloudSso::activate() {
  plat::String text = startReading();
  principals_.clear();
  groupNames_.clear();
  for (const CloudSsoEntry& entry : splitCloudSsoEntries(text.get())) {
    // Without '%' the entry is a non-group, whatever its row shows.
    auto principal = std::make_unique<sysauth::SecurityPrincipal>();
    principal->parse((entry.group + ":" + entry.permissions).c_str(), nullptr);
    principals_.add(std::move(principal));
    groupNames_[entry.group] = entry.name;
  }
  listEntries(XN_TEXT(textkey::cloudauth_cloudsso_add_btn),
              XN_TEXT(textkey::cloudauth_cloudsso_add_btn_tip),
              XN_TEXT(textkey::cloudauth_cloudsso_remove_btn),
              XN_TEXT(textkey::cloudauth_cloudsso_remove_btn_tip));
}

void PermissionsSchemeCloudSso::buttonClicked(const char* name) {
  if (!name)
    return;
  if (std::strcmp(name, "add") == 0)
    openAddDialog(std::make_unique<CloudSsoAddDlg>(editor_->getDialog()));
  else if (std::strcmp(name, "remove") == 0)
    removeSelectedEntry();
}

void PermissionsSchemeCloudSso::entryAccepted(sui::EntryAddDialog& dialog) {
  auto& given = static_cast<CloudSsoAddDlg&>(dialog);
  addGroup(given.groupUuid().get(), given.displayName().get());
}

void PermissionsSchemeCloudSso::addGroup(const char* uuid, const char* name) {
  if (!*uuid)
    return;
  const char* label = *name ? name : uuid;
  // Entries are held as non-groups, so this search never finds one.
  int index = principals_.find(uuid, true);
  if (index >= 0) {
    editor_->selectEntry(index);
    editor_->entryAdded();
    return;
  }
  auto principal = std::make_unique<sysauth::SecurityPrincipal>();
  principal->parse((std::string(uuid) + ":d").c_str(), nullptr);
  index = principals_.add(std::move(principal));
  groupNames_[uuid] = label;
  editor_->insertEntry(index, label, "group");
  writeParameter();
  editor_->selectEntry(index);
  editor_->entryAdded();
}

const char* PermissionsSchemeCloudSso::entryText(int index) {
  return nameOf(principals_.at(index).id.get());
}

const char* PermissionsSchemeCloudSso::entryImage(int) {
  return "group";
}

void PermissionsSchemeCloudSso::removingEntry(int index) {
  groupNames_.erase(principals_.at(index).id.get());
}

const char* PermissionsSchemeCloudSso::nameOf(const char* uuid) const {
  auto known = groupNames_.find(uuid);
  return known == groupNames_.end() ? uuid : known->second.c_str();
}

void PermissionsSchemeCloudSso::writeParameter() {
  std::string text;
  for (int index = 0; index < principals_.size(); ++index) {
    const sysauth::SecurityPrincipal& principal = principals_.at(index);
    if (index > 0)
      text += ',';
    text += principal.id.get();
    text += ':';
    text += nameOf(principal.id.get());
    text += ':';
    text += principal.permissions.getText();
  }
  storeText(text.c_str());
}

} // namespace cloudAuth
