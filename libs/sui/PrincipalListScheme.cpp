#include "sui/PrincipalListScheme.h"

#include "mui/Events.h"
#include "mui/MuDialog.h"
#include "plat/Assertion.h"
#include "plat/Configuration.h"
#include "plat/DeferredDeleter.h"
#include "sui/EntryAddDialog.h"
#include "sui/PermissionsSchemeEditor.h"

namespace sui {

PrincipalListScheme::PrincipalListScheme(PermissionsSchemeEditor* editor, const char* parameterName)
    : editor_(editor) {
  plat::Configuration* configuration = editor_->getConfiguration();
  XN_ASSERT(configuration);
  parameter_ = configuration->getParam(parameterName);
}

PrincipalListScheme::~PrincipalListScheme() = default;

xnauth::Permissions* PrincipalListScheme::getPermissions(int index, bool& locked, bool&,
                                                         bool& flag) {
  locked = locked_;
  flag = true;
  return &principals_.at(index).permissions;
}

void PrincipalListScheme::permissionsChanged(int, char) {
  writeParameter();
}

void PrincipalListScheme::selectionChanged(int index) {
  editor_->setHelpText(nullptr);
  editor_->enableButton("add", !locked_);
  editor_->enableButton("remove", index >= 0 && !locked_);
}

plat::String PrincipalListScheme::startReading() {
  locked_ = plat::isPriorityPolicy(parameter_->getPriority());
  return parameter_->getValueString();
}

void PrincipalListScheme::listEntries(const char* addLabel, const char* addTip,
                                      const char* removeLabel, const char* removeTip) {
  for (int index = 0; index < principals_.size(); ++index)
    editor_->insertEntry(index, entryText(index), entryImage(index));
  editor_->addButton("add", addLabel, addTip);
  editor_->addButton("remove", removeLabel, removeTip);
  editor_->selectEntry(-1);
}

void PrincipalListScheme::removeSelectedEntry() {
  int index = editor_->getSelectedEntry();
  if (index < 0)
    return;
  removingEntry(index);
  principals_.removeAt(index);
  editor_->removeEntry(index);
  writeParameter();
}

void PrincipalListScheme::storeText(const char* text) {
  parameter_->setFromString(text, plat::priorityPreference);
}

void PrincipalListScheme::openAddDialog(std::unique_ptr<EntryAddDialog> dialog) {
  plat::deleteLater(addDialog_.release());
  addDialog_ = std::move(dialog);
  addDialog_->dialog()->addObserver(this);
  addDialog_->show();
}

void PrincipalListScheme::handleEvent(mui::MuElement* source, int event) {
  if (!addDialog_ || source != addDialog_->dialog() || event != mui::EventClosed)
    return;
  if (addDialog_->accepted())
    entryAccepted(*addDialog_);
  addDialog_->dialog()->removeObserver(this);
  // The close is still being reported from inside the dialog.
  plat::deleteLater(addDialog_.release());
}

} // namespace sui
