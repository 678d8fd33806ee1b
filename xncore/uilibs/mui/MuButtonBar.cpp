#include "mui/MuButtonBar.h"

#include "loc/Localize.h"
#include "mui/MuButton.h"
#include "mui/MuDialog.h"
#include "mui/MuFrame.h"
#include "mui/MuLayout.h"
#include "mui/MuSpacer.h"
#include "mui/Mui.h"
#include "plat/Assertion.h"
#include "ui/TextKeys.h"

#include <algorithm>
#include <cstring>

namespace mui {

namespace {

struct Standard {
  int id;
  const char* name;
  const char* key;
};

constexpr Standard standards[] = {
    {MuButtonBar::Ok, "ok", textkey::ui_button_ok},
    {MuButtonBar::Cancel, "cancel", textkey::ui_button_cancel},
    {MuButtonBar::Apply, "apply", textkey::ui_button_apply},
    {MuButtonBar::Yes, "yes", textkey::ui_button_yes},
    {MuButtonBar::No, "no", textkey::ui_button_no},
    {MuButtonBar::Back, "back", textkey::ui_button_back},
    {MuButtonBar::Next, "next", textkey::ui_button_next},
    {MuButtonBar::Continue, "continue", textkey::ui_button_continue},
    {MuButtonBar::Save, "save", textkey::ui_button_save},
    {MuButtonBar::Open, "open", textkey::ui_button_open},
};

// The order of the buttons after Back and Next and the gap.
constexpr int mainOrder[] = {MuButtonBar::Save, MuButtonBar::Open,     MuButtonBar::Ok,
                             MuButtonBar::Yes,  MuButtonBar::Continue, MuButtonBar::Cancel,
                             MuButtonBar::No,   MuButtonBar::Apply};
// The candidates for the default and the cancel button, best first.
constexpr int defaultOrder[] = {MuButtonBar::Ok,   MuButtonBar::Yes,  MuButtonBar::Continue,
                                MuButtonBar::Next, MuButtonBar::Save, MuButtonBar::Open};
constexpr int cancelOrder[] = {MuButtonBar::Cancel, MuButtonBar::No};

const Standard* standardOf(int id) {
  for (const Standard& standard : standards) {
    if (standard.id == id)
      return &standard;
  }
  return nullptr;
}

} // namespace

MuButtonBar::MuButtonBar(MuElement* parent, int buttons, bool autoDefault)
    : parent_(XN_CHECKED_CAST(MuContainer, parent)) {
  XN_ASSERT(!(buttons & Custom));
  if (parent_->rootDialog() == parent_) {
    frame_ = MuFrame::create(parent_, "buttons", nullptr, MuFrame::Footer);
    dialog()->setPanelPosition(frame_, MuDialog::PanelBottom);
    layout_ = MuLayout::create(frame_, "layout", MuLayout::Horizontal);
  } else {
    layout_ = MuLayout::create(parent_, "buttons", MuLayout::Horizontal);
  }
  expander_ = addExpander();
  customAnchor_ = expander_;
  setButtons(buttons, autoDefault);
}

MuButtonBar::~MuButtonBar() {
  forgetDialogButtons();
  parent_->removeChild(frame_ ? static_cast<MuElement*>(frame_) : layout_);
}

MuDialog* MuButtonBar::dialog() const {
  return parent_->rootDialog();
}

MuSpacer* MuButtonBar::addExpander() {
  MuSpacer* expander = MuSpacer::create(layout_, 0, 0);
  layout_->setChildLayout(expander, MuLayout::Weighted, 1);
  return expander;
}

void MuButtonBar::forgetDialogButtons() {
  MuDialog* root = dialog();
  if (!root)
    return;
  for (int which : {MuDialog::DefaultButton, MuDialog::CancelButton}) {
    if (buttonId(root->button(which)))
      root->setButton(which, nullptr);
  }
}

void MuButtonBar::setButtons(int buttons, bool autoDefault) {
  forgetDialogButtons();
  for (const auto& [button, id] : buttons_)
    layout_->removeChild(button);
  buttons_.clear();
  if (gap_) {
    layout_->removeChild(gap_);
    gap_ = nullptr;
  }
  layout_->removeChild(expander_);
  expander_ = addExpander();
  customAnchor_ = expander_;
  addButton(buttons & Back);
  addButton(buttons & Next);
  if (buttons & (Back | Next | Cancel)) {
    gap_ = MuSpacer::create(layout_, 0, 0);
    layout_->setChildLayout(gap_, MuLayout::Fixed, Mui::metric(MetricSpacing));
  }
  for (int id : mainOrder)
    addButton(buttons & id);
  if (autoDefault)
    chooseDefaultButtons();
}

MuButton* MuButtonBar::addButton(int id, const char* name, const char* label) {
  if (id == Custom) {
    MuButton* button = MuButton::create(layout_, name, label);
    layout_->moveChild(button, MuLayout::Before, customAnchor_);
    customAnchor_ = button;
    buttons_.emplace_back(button, id);
    return button;
  }
  const Standard* standard = standardOf(id);
  if (!standard)
    return nullptr;
  // The label is read now, in the language in force.
  MuButton* button = MuButton::create(layout_, standard->name, XN_TEXT(standard->key),
                                      MuButton::Normal, 0, MuButton::AlignCentre);
  buttons_.emplace_back(button, id);
  return button;
}

int MuButtonBar::buttonId(const MuElement* element) const {
  if (!element || element->parent() != layout_)
    return 0;
  for (const auto& [button, id] : buttons_) {
    if (button == element)
      return id;
  }
  return 0;
}

MuButton* MuButtonBar::button(int id, const char* name) const {
  for (const auto& [button, buttonId] : buttons_) {
    if (buttonId != id)
      continue;
    if (id != Custom || (name && button->name() && std::strcmp(button->name(), name) == 0))
      return button;
  }
  return nullptr;
}

void MuButtonBar::setEnabled(bool enabled) {
  for (const auto& [button, id] : buttons_)
    button->setEnabled(enabled);
}

void MuButtonBar::resetExpander() {
  layout_->removeChild(expander_);
  expander_ = addExpander();
  customAnchor_ = expander_;
}

void MuButtonBar::chooseDefaultButtons() {
  MuDialog* root = dialog();
  const auto choose = [&](const auto& order, int which) {
    for (int id : order) {
      if (MuButton* found = button(id)) {
        root->setButton(which, found);
        return;
      }
    }
  };
  choose(defaultOrder, MuDialog::DefaultButton);
  choose(cancelOrder, MuDialog::CancelButton);
}

} // namespace mui
