// smisc::PermissionsSchemeSystemAuth: the entries of the permissions editor
// as users and groups of the operating system, held as an access list in
// parameter "Permissions" ("[%]id:permissions" entries). The list keeps its
// sorted order; a principal that is listed already selects its row instead of
// being added again, and a new one starts with the text "d". Names are typed
// into SystemAuthAddDlg. A text that doesn't parse empties the list without a
// word.
#pragma once

#include "sui/PrincipalListScheme.h"

#include <memory>

namespace smisc {

class PermissionsSchemeSystemAuth : public sui::PrincipalListScheme {
public:
  explicit PermissionsSchemeSystemAuth(sui::PermissionsSchemeEditor* editor);
  ~PermissionsSchemeSystemAuth() override;

  void activate() override;
  /// "add" shows the add dialog; "remove" removes the selected entry.
  void buttonClicked(const char* name) override;

  /// Shows the dialog in which a name is typed.
  virtual void showAddDialog();

  /// Adds `principal` at its sorted place and selects it; a principal listed
  /// under the same id and kind is selected instead, keeping its permissions.
  void addPrincipal(std::unique_ptr<sysauth::SecurityPrincipal> principal);

private:
  const char* entryText(int index) override;
  const char* entryImage(int index) override;
  void writeParameter() override;
  void entryAccepted(sui::EntryAddDialog& dialog) override;
};

} // namespace smisc
