// sui::PermissionsEditor: the form in which the entries of one permission
// scheme are listed and their permissions edited. On the left a list of the
// scheme's users and groups with the scheme's buttons beside it; below, in a
// frame, a choice of presets and a grid with an allow and a deny box for each
// permission letter. The form knows nothing of who the entries are: the scheme
// in force owns them, fills the list and is told of every change, and writes
// its parameter itself. The editor changes an entry's set directly, through
// the pointer the scheme gives for the selected entry.
//
// The application's dialog derives from the editor, builds the form with
// createForm, adds the letters the form leaves out, owns the schemes through
// addScheme and observes its dialog: its handleEvent calls the default
// dispatch of MuObserver and then this class's handleEvent.
#pragma once

#include "mui/MuObserver.h"
#include "sui/PermissionsSchemeEditor.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace mui {
class MuCheck;
class MuChoice;
class MuContainer;
class MuElement;
class MuFrame;
class MuLayout;
class MuList;
class MuStatic;
} // namespace mui

namespace xnauth {
class Permissions;
}

namespace sui {

class PermissionsScheme;

class PermissionsEditor : public mui::MuObserver, public PermissionsSchemeEditor {
public:
  /// Values of the preset choice.
  enum Preset : int { NoAccess = 0, ViewOnly = 1, Normal = 2, Administrative = 3, Custom = 4 };

  /// No element exists until createForm.
  PermissionsEditor();
  ~PermissionsEditor() override;

  /// Builds the form inside `container`, with rows for the letters s, k, p and c.
  void createForm(mui::MuLayout* container);
  /// A row for a letter that createForm left out; 'q' stays the last row.
  void addPermissionRow(char code);
  /// Takes ownership of `scheme`. A second scheme under the same name
  /// replaces the first in the map without deleting it.
  void addScheme(const char* name, PermissionsScheme* scheme);
  /// Empties the list and the buttons and makes `scheme` the one in force,
  /// which then fills them.
  void setScheme(PermissionsScheme* scheme);
  /// Brings the preset choice and the boxes in line with the selected entry;
  /// `rebuildChoice` also works the preset out from the entry's text.
  void updateForm(bool rebuildChoice);

  // PermissionsSchemeEditor
  void addButton(const char* name, const char* label, const char* tip) override;
  void enableButton(const char* name, bool enabled) override;
  /// Nothing: this form has no help line.
  void setHelpText(const char* text) override;
  void insertEntry(int index, const char* text, const char* imageName) override;
  void removeEntry(int index) override;
  void selectEntry(int index) override;
  int getSelectedEntry() override;

  // MuObserver
  /// A double click on an entry of the scheme goes to the scheme.
  void handleEvent(mui::MuElement* source, int event) override;
  /// A click on one of the scheme's buttons goes to the scheme.
  void clicked(mui::MuElement* source) override;
  /// The selection, a preset or a box changed.
  void changed(mui::MuElement* source) override;

  PermissionsScheme* scheme() const noexcept { return scheme_; }

protected:
  mui::MuLayout* form_ = nullptr;
  mui::MuLayout* split_ = nullptr;
  mui::MuList* list_ = nullptr;
  mui::MuLayout* buttons_ = nullptr;
  mui::MuFrame* settings_ = nullptr;
  mui::MuLayout* settingsLayout_ = nullptr;
  mui::MuLayout* permset_ = nullptr;
  mui::MuChoice* choice_ = nullptr;
  mui::MuLayout* permcustom_ = nullptr;
  mui::MuStatic* customHelp_ = nullptr;
  int columnWidth_ = 0;
  xnauth::Permissions* current_ = nullptr;
  std::map<std::string, std::unique_ptr<PermissionsScheme>> schemes_;
  /// Schemes whose name a later one took; kept until the editor goes.
  std::vector<std::unique_ptr<PermissionsScheme>> replacedSchemes_;
  PermissionsScheme* scheme_ = nullptr;
  int schemeStartIndex = 0;
  int schemeEndIndex = 0;

private:
  void fillPresetChoice(bool withNoAccess);
  void choosePreset(int preset, int row);
  void boxChanged(mui::MuElement* source, int row);
  /// The box of `code` in the column "allow" or "deny"; null without a row.
  mui::MuCheck* boxOf(char code, const char* column);
  /// relayout() on the form and on its parent.
  void relayoutForm();
};

} // namespace sui
