// cloudAuth::PermissionsSchemeCloudSso: the entries of the permissions editor
// as groups of the organisation's identity provider, known by UUID and shown
// under a name the administrator gives them. The name has nowhere else to
// live, so it travels in the parameter's text: every entry is written as
// GROUP_UUID:NAME:PERMISSIONS, also one that was read with two fields.
//
// Entries are held as an access list of non-groups, since a UUID is no
// account; the UUID fails the account check (logged) and is kept as typed.
// Two consequences are the settled behaviour: adding a UUID that is listed
// already makes a second row, because the search for it asks for a group; and
// the names are kept by UUID, so such rows share one name, and removing one of
// them forgets the name of both. A bad permission text isn't absorbed here as
// in the system scheme: its ParseException leaves activate().
#pragma once

#include "sui/PrincipalListScheme.h"

#include <map>
#include <string>

namespace cloudAuth {

class PermissionsSchemeCloudSso : public sui::PrincipalListScheme {
public:
  /// Reads and writes the parameter `parameterName` of the editor's configuration.
  PermissionsSchemeCloudSso(sui::PermissionsSchemeEditor* editor, const char* parameterName);
  ~PermissionsSchemeCloudSso() override;

  void activate() override;
  /// "add" shows the add dialog; "remove" removes the selected entry and the
  /// name of its UUID.
  void buttonClicked(const char* name) override;

  /// Adds a group with the text "d", named `name` or, when that is empty, by
  /// its UUID, and selects it. An empty `uuid` adds nothing.
  void addGroup(const char* uuid, const char* name);

private:
  const char* entryText(int index) override;
  const char* entryImage(int index) override;
  void removingEntry(int index) override;
  void writeParameter() override;
  void entryAccepted(sui::EntryAddDialog& dialog) override;
  /// The name kept for a UUID, or the UUID itself.
  const char* nameOf(const char* uuid) const;

  std::map<std::string, std::string> groupNames_;
};

} // namespace cloudAuth
