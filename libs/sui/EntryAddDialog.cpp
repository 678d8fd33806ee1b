#include "sui/EntryAddDialog.h"

#include "mui/MuButton.h"
#include "mui/MuButtonBar.h"
#include "mui/MuDialog.h"
#include "mui/MuFrame.h"
#include "mui/MuInfoFrame.h"
#include "mui/MuLayout.h"
#include "mui/Mui.h"

#include <algorithm>

namespace sui {

namespace {

// Fixed in width, fitted in height, modal to the window that owns it.
constexpr int dialogStyle =
    mui::MuDialog::FixedSize | mui::MuDialog::WindowModal | mui::MuDialog::FitHeight;

} // namespace

EntryAddDialog::EntryAddDialog(mui::MuDialog* parent, const char* name, const char* title) {
  const mui::Size size{mui::Mui::toPixels(650), mui::Mui::toPixels(0)};
  dialog_.reset(mui::MuDialog::create(name, title, &size, dialogStyle, parent, nullptr));
  layout_ = mui::MuLayout::create(dialog_.get(), nullptr, mui::MuLayout::Vertical);
}

EntryAddDialog::~EntryAddDialog() = default;

void EntryAddDialog::completeForm(mui::MuElement* focusField, mui::MuElement* otherField) {
  focusField_ = focusField;
  info_ = std::make_unique<mui::MuInfoFrame>(layout_, "info", nullptr, mui::MuFrame::Bordered);
  buttonBar_ = std::make_unique<mui::MuButtonBar>(
      layout_, mui::MuButtonBar::Ok | mui::MuButtonBar::Cancel, true);
  dialog_->addObserver(this);
  int width = std::max(focusField->labelWidth(), otherField->labelWidth()) +
              mui::Mui::metric(mui::MetricLabelGap);
  focusField->setLabelLayout(width, -1);
  otherField->setLabelLayout(width, -1);
  buttonBar_->button(mui::MuButtonBar::Ok, nullptr)->setEnabled(false);
}

void EntryAddDialog::show() {
  dialog_->relayout();
  dialog_->setVisible(true);
  // After showing: a hidden window takes no focus on every platform.
  focusField_->setFocus();
}

void EntryAddDialog::showError(const char* text, mui::MuElement* field) {
  // The frame escapes the text into its mark-up itself.
  info_->setMessage(mui::MuInfoFrame::Error, text, nullptr);
  field->setFocus();
  dialog_->relayout();
}

void EntryAddDialog::changed(mui::MuElement* source) {
  if (!weighsChange(source))
    return;
  info_->setShown(false);
  buttonBar_->button(mui::MuButtonBar::Ok, nullptr)->setEnabled(hasInput());
  dialog_->relayout();
}

void EntryAddDialog::clicked(mui::MuElement* source) {
  switch (buttonBar_->buttonId(source)) {
  case mui::MuButtonBar::Ok:
    if (acceptInput())
      close(true);
    break;
  case mui::MuButtonBar::Cancel:
    close(false);
    break;
  default:
    break;
  }
}

void EntryAddDialog::close(bool accepted) {
  accepted_ = accepted;
  // As the window's own close: hidden first, then EventClosed to the owner.
  dialog_->userClose();
}

} // namespace sui
