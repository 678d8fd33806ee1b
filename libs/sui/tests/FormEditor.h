// The permissions editor as the application's dialog holds it: built into a
// dialog that it observes, with a row for every defined letter, on whichever
// binding is installed.
#pragma once

#include "mui/MuDialog.h"
#include "mui/MuLayout.h"
#include "mui/Mui.h"
#include "plat/Configuration.h"
#include "sui/PermissionsEditor.h"
#include "xnauth/PermissionDefn.h"

#include <cstring>
#include <memory>

namespace sui::test {

class FormEditor : public PermissionsEditor {
public:
  explicit FormEditor(plat::Configuration& configuration) : configuration_(configuration) {
    const mui::Size size{mui::Mui::toPixels(1000), mui::Mui::toPixels(1200)};
    dialog_.reset(mui::MuDialog::create("form", "Form", &size, 0, nullptr, nullptr));
    createForm(mui::MuLayout::create(dialog_.get(), nullptr, mui::MuLayout::Vertical));
    for (const xnauth::PermissionDefn& definition : xnauth::getPermissionDefns()) {
      if (!std::strchr("skpc", definition.code))
        addPermissionRow(definition.code);
    }
    dialog_->addObserver(this);
    dialog_->setVisible(true);
  }

  mui::MuDialog* getDialog() override { return dialog_.get(); }
  plat::Configuration* getConfiguration() override { return &configuration_; }
  void handleEvent(mui::MuElement* source, int event) override {
    MuObserver::handleEvent(source, event);
    PermissionsEditor::handleEvent(source, event);
  }

private:
  plat::Configuration& configuration_;
  // Goes before the schemes, which the editor deletes, as in the application.
  std::unique_ptr<mui::MuDialog> dialog_;
};

} // namespace sui::test
