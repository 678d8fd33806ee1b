// sui::PermissionsSchemeEditor: the permissions editor as a scheme sees it.
// A scheme fills the list of entries, adds its buttons and moves the
// selection through it; indices count the scheme's own entries from 0, and
// -1 means no entry.
#pragma once

namespace mui {
class MuDialog;
}

namespace plat {
class Configuration;
}

namespace sui {

class PermissionsSchemeEditor {
public:
  virtual ~PermissionsSchemeEditor() = default;

  /// The dialog that owns the form: the parent of a scheme's own dialogs.
  virtual mui::MuDialog* getDialog() { return nullptr; }
  /// Where a scheme finds its parameter.
  virtual plat::Configuration* getConfiguration() { return nullptr; }
  /// The form's help line; null hides it.
  virtual void setHelpText(const char* /*text*/) {}
  /// A button beside the list, named `name`; a second one of that name is ignored.
  virtual void addButton(const char* /*name*/, const char* /*label*/, const char* /*tip*/) {}
  /// An unknown name is ignored.
  virtual void enableButton(const char* /*name*/, bool /*enabled*/) {}
  /// A row at `index`, showing `text` beside the named image.
  virtual void insertEntry(int index, const char* text, const char* imageName) = 0;
  /// Removes the row and selects the one above it (none after the first).
  virtual void removeEntry(int index) = 0;
  /// Selects the row, tells the scheme and brings the form up to date.
  virtual void selectEntry(int index) = 0;
  virtual int getSelectedEntry() = 0;
  /// The scheme has finished adding an entry.
  virtual void entryAdded() {}
};

} // namespace sui
