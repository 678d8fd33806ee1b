#include "sui/PrincipalListScheme.h"

#include "plat/Assertion.h"
#include "plat/Configuration.h"
#include "sui/PermissionsSchemeEditor.h"

namespace sui {

PrincipalListScheme::PrincipalListScheme(PermissionsSchemeEditor* editor, const char* parameterName)
    : editor_(editor) {
  plat::Configuration* configuration = editor_->getConfiguration();
  XN_ASSERT(configuration);
  parameter_ = configuration->getParam(parameterName);
}

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

} // namespace sui
