// sui::PrincipalListScheme: what the schemes whose entries form an access
// list share. The list lives in a parameter of the editor's configuration;
// reading it takes the lock from the priority of its value (policy makes the
// form read-only), and every change of an entry writes the whole list back at
// priority 10. Each scheme adds its own text form and its own add dialog;
// the list, the "add" and "remove" buttons, the removal of the selected entry
// and the life of the add dialog are the same for all. The add dialog doesn't
// block: the scheme hears of its close and deletes it once the close has been
// reported, or with itself.
#pragma once

#include "mui/MuObserver.h"
#include "plat/String.h"
#include "sui/PermissionsScheme.h"
#include "sysauth/SecurityPrincipalList.h"

#include <memory>

namespace plat {
class ConfigParameter;
}

namespace sui {

class EntryAddDialog;
class PermissionsSchemeEditor;

class PrincipalListScheme : public PermissionsScheme, mui::MuObserver {
public:
  ~PrincipalListScheme() override;

  /// The entry's own set; `locked` while policy holds the parameter.
  xnauth::Permissions* getPermissions(int index, bool& locked, bool& enabled, bool& flag) override;
  /// Writes the parameter, whichever entry changed.
  void permissionsChanged(int index, char code) override;
  /// "add" stays enabled and "remove" follows the selection, unless locked.
  void selectionChanged(int index) override;
  bool isLocked() override { return locked_; }

protected:
  /// Finds `parameterName` in the editor's configuration.
  PrincipalListScheme(PermissionsSchemeEditor* editor, const char* parameterName);

  /// Takes the lock from the parameter's priority and gives its text.
  plat::String startReading();
  /// Fills the editor with every entry, adds the two buttons with their
  /// texts, and selects no entry.
  void listEntries(const char* addLabel, const char* addTip, const char* removeLabel,
                   const char* removeTip);
  /// Removes the selected entry, if any, and writes the parameter.
  void removeSelectedEntry();
  /// Stores `text` as the parameter's value at priority 10.
  void storeText(const char* text);
  /// Shows `dialog` as the add dialog; one that is still there goes.
  void openAddDialog(std::unique_ptr<EntryAddDialog> dialog);

  /// What entry `index` shows, and the name of its image.
  virtual const char* entryText(int index) = 0;
  virtual const char* entryImage(int index) = 0;
  /// Called before entry `index` goes.
  virtual void removingEntry(int /*index*/) {}
  /// Renders the list and stores it.
  virtual void writeParameter() = 0;
  /// Ok closed the add dialog; `dialog` holds what was entered.
  virtual void entryAccepted(EntryAddDialog& dialog) = 0;

  PermissionsSchemeEditor* editor_;
  sysauth::SecurityPrincipalList principals_;

private:
  /// The add dialog's close.
  void handleEvent(mui::MuElement* source, int event) override;

  std::unique_ptr<EntryAddDialog> addDialog_;
  plat::ConfigParameter* parameter_;
  bool locked_ = false;
};

} // namespace sui
