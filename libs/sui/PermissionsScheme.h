// sui::PermissionsScheme: how the permissions editor calls the owner of its
// entries. A scheme knows who the entries are, reads them from its parameter,
// fills the editor through sui::PermissionsSchemeEditor, and writes the
// parameter back whenever the editor reports a change. The editor changes an
// entry's permission set directly, through the pointer getPermissions gives.
#pragma once

namespace xnauth {
class Permissions;
}

namespace sui {

class PermissionsScheme {
public:
  virtual ~PermissionsScheme() = default;

  /// Reads the parameter, fills the editor, adds the buttons and selects no
  /// entry. Runs each time the scheme becomes current or the text is applied.
  virtual void activate() = 0;
  /// The live set of entry `index`, which the editor changes in place.
  /// `locked` tells whether the form must be read-only; `enabled` comes in as
  /// true and stays so; `flag` is set by the schemes and read by nobody.
  virtual xnauth::Permissions* getPermissions(int index, bool& locked, bool& enabled,
                                              bool& flag) = 0;
  /// Entry `index` was changed: `code` is the letter, or 0 for a preset.
  virtual void permissionsChanged(int /*index*/, char /*code*/) {}
  /// `index` is -1 when no entry is selected.
  virtual void selectionChanged(int /*index*/) {}
  /// One of the buttons that the scheme added was clicked.
  virtual void buttonClicked(const char* /*name*/) {}
  /// The selected entry was double-clicked.
  virtual void entryActivated() {}
  virtual bool isLocked() { return false; }
};

} // namespace sui
