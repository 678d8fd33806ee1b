// app::PermissionsDialog: the program's one window. At the top the choice of
// authentication scheme, below it the permissions editor's form, then two
// buttons that carry the content across and the edit box with the text of
// parameter "Permissions". The form and the text are kept apart on purpose:
// Refresh Parameter takes the form into the text, Refresh Users & Groups (or
// Return in the edit box) the text into the form. The parameter stands
// between them: every change in the form and the second button write it, the
// first button reads it. Closing the window ends the application loop.
#pragma once

#include "mui/MuDialog.h"
#include "smisc/NameResolverSystemAuth.h"
#include "sui/PermissionsEditor.h"

#include <functional>
#include <memory>

namespace mui {
class MuAboutDialog;
class MuButton;
class MuEdit;
class MuScroll;
} // namespace mui

namespace smisc {
class PermissionsSchemeNtLogon;
}

namespace cloudAuth {
class PermissionsSchemeCloudSso;
}

namespace app {

class PermissionsDialog : public sui::PermissionsEditor, mui::MuDialog::ActivateCallback {
public:
  /// Builds the window, hidden, with the parameter's text in the edit box.
  PermissionsDialog();
  ~PermissionsDialog() override;

  /// Shows the window with the system scheme in force and no entry selected.
  void open();

  mui::MuDialog* getDialog() override { return dialog_.get(); }
  /// The process's global configuration.
  plat::Configuration* getConfiguration() override;
  /// Selects the new entry, with the boxes disabled until the user picks it.
  void insertEntry(int index, const char* text, const char* imageName) override;
  void selectEntry(int index) override;
  /// Highlights the first row, if any, and leaves the boxes disabled until
  /// the user picks a row.
  void removeEntry(int index) override;

  /// The default dispatch, then the editor's; a change lays the scroll out again.
  void handleEvent(mui::MuElement* source, int event) override;
  /// A change of scheme reads the parameter in the new scheme's form; other
  /// changes are the editor's.
  void changed(mui::MuElement* source) override;
  void clicked(mui::MuElement* source) override;
  /// The application loop ends with code 0.
  void dialogClosed(mui::MuDialog* dialog) override;

private:
  /// Return with the focus in the edit box applies its text; elsewhere it
  /// presses the default button, Refresh Parameter.
  bool activate(int which, mui::MuDialog* dialog) override;

  void buildFrame();
  void buildTextArea();
  /// The text into the parameter, and from there into the form.
  void applyText();
  /// The form into the parameter, and from there into the edit box.
  void showParameter();
  /// Shows the frame of the permissions with the preset choice.
  void showSettings();
  /// Disables every allow and deny box; hides the help unless `keepHelp`.
  void clearBoxes(bool keepHelp);
  void relayoutMain();
  /// Runs `fill`, in which the scheme fills the list, and lays the form out
  /// once at the end rather than after each entry.
  void fillList(const std::function<void()>& fill);
  void finishFilling();
  /// Tells the scheme of the inserted entry and selects its row.
  void selectInserted();

  std::unique_ptr<mui::MuDialog> dialog_;
  std::unique_ptr<mui::MuAboutDialog> aboutDialog_;
  mui::MuScroll* scroll_ = nullptr;
  mui::MuLayout* main_ = nullptr;
  mui::MuChoice* schemeChoice_ = nullptr;
  mui::MuEdit* permissionString_ = nullptr;
  mui::MuButton* refreshText_ = nullptr;
  mui::MuButton* refreshUi_ = nullptr;
  mui::MuButton* aboutLink_ = nullptr;
  // Owned by the editor's schemes.
  smisc::PermissionsSchemeNtLogon* ntLogonScheme_ = nullptr;
  cloudAuth::PermissionsSchemeCloudSso* cloudSsoScheme_ = nullptr;
  smisc::NameResolverSystemAuth nameResolver_;
  /// The entry most recently inserted.
  int lastInserted_ = 0;
  bool fillingList_ = false;
  /// An entry was inserted while the list was being filled, and nothing was
  /// selected after it.
  bool insertedUnselected_ = false;
};

} // namespace app
