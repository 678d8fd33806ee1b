// app::PermissionsDialog: the program's one window. Below the form stand two
// buttons that carry the content across and the edit box with the text of
// parameter "Permissions". The form and the text are kept apart on purpose:
// Refresh Parameter takes the form into the text, Refresh Users & Groups
// (or Return in the edit box) the text into the form. The parameter stands
// between them: every change in the form and the second button write it, the
// first button reads it. Closing the window ends the application loop.
#pragma once

#include "mui/MuDialog.h"
#include "mui/MuObserver.h"

#include <memory>

namespace mui {
class MuAboutDialog;
class MuButton;
class MuChoice;
class MuEdit;
class MuLayout;
class MuScroll;
} // namespace mui

namespace app {

class PermissionsDialog : public mui::MuObserver, mui::MuDialog::ActivateCallback {
public:
  /// Builds the window, hidden, with the parameter's text in the edit box.
  PermissionsDialog();
  ~PermissionsDialog() override;

  /// Shows the window.
  void open();

  mui::MuDialog* getDialog() const noexcept { return dialog_.get(); }

  void handleEvent(mui::MuElement* source, int event) override;
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
  /// The parameter, as the form last wrote it, into the edit box.
  void showParameter();

  std::unique_ptr<mui::MuDialog> dialog_;
  std::unique_ptr<mui::MuAboutDialog> aboutDialog_;
  mui::MuScroll* scroll_ = nullptr;
  mui::MuLayout* main_ = nullptr;
  mui::MuChoice* schemeChoice_ = nullptr;
  mui::MuEdit* permissionString_ = nullptr;
  mui::MuButton* refreshText_ = nullptr;
  mui::MuButton* refreshUi_ = nullptr;
  mui::MuButton* aboutLink_ = nullptr;
};

} // namespace app
