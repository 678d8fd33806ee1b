#include "sui/PermissionsEditor.h"

#include "loc/Localize.h"
#include "mui/MuButton.h"
#include "mui/MuCheck.h"
#include "mui/MuChoice.h"
#include "mui/MuFrame.h"
#include "mui/MuLayout.h"
#include "mui/MuList.h"
#include "mui/MuSpacer.h"
#include "mui/MuStatic.h"
#include "mui/Mui.h"
#include "plat/Assertion.h"
#include "sui/PermissionsScheme.h"
#include "sui/TextKeys.h"
#include "xnauth/PermissionDefn.h"
#include "xnauth/Permissions.h"

#include <algorithm>

namespace sui {

namespace {

// Columns of the list: the entry's image, then its name.
constexpr int imageColumn = 0;
constexpr int nameColumn = 1;

// The presets that stand for a permission text, in the order they are compared.
constexpr struct {
  int id;
  const char* text;
} presetTexts[] = {{PermissionsEditor::ViewOnly, "v"},
                   {PermissionsEditor::Normal, "d"},
                   {PermissionsEditor::Administrative, "f"}};

// Spells the failed condition as the reports of these assertions always have.
void requireIndex(bool holds, const char* expression) {
  if (!holds)
    plat::assertionFailed(plat::AssertionFail(expression, __FILE__, __LINE__));
}

// A column of the grid: the box centred between two stretching spacers.
mui::MuCheck* addBoxColumn(mui::MuLayout* row, const char* name, int width, const char* tip) {
  mui::MuLayout* column = mui::MuLayout::create(row, name, mui::MuLayout::Horizontal);
  column->setSpacing(0);
  row->setChildLayout(column, mui::MuLayout::Fixed, width);
  column->setChildLayout(mui::MuSpacer::create(column, 0, 0), mui::MuLayout::Weighted, 1);
  mui::MuCheck* box = mui::MuCheck::create(column, "check", nullptr, 0, nullptr, nullptr);
  box->setToolTip(tip);
  column->setChildLayout(mui::MuSpacer::create(column, 0, 0), mui::MuLayout::Weighted, 1);
  return box;
}

} // namespace

PermissionsEditor::PermissionsEditor() = default;

PermissionsEditor::~PermissionsEditor() = default;

void PermissionsEditor::createForm(mui::MuLayout* container) {
  using mui::MuLayout;
  form_ = container;
  split_ = MuLayout::create(form_, "split", MuLayout::Horizontal);
  form_->setChildLayout(split_, MuLayout::Fixed, mui::Mui::toPixels(210));
  list_ = mui::MuList::create(split_, "list", 12, nullptr);
  split_->setChildLayout(list_, MuLayout::Weighted, 1);
  list_->addColumn(imageColumn, 1, nullptr, -1);
  // A literal, never shown: the list has no header.
  list_->addColumn(nameColumn, 0, "Name", -1);
  buttons_ = MuLayout::create(split_, "buttons", MuLayout::Vertical);
  buttons_->setVisible(false);

  settings_ = mui::MuFrame::create(form_, "settings", XN_TEXT(textkey::sui_optperm_permissions), 1);
  settingsLayout_ = MuLayout::create(settings_, "l", MuLayout::Vertical);
  permset_ = MuLayout::create(settingsLayout_, "permset", MuLayout::Vertical);
  choice_ = mui::MuChoice::create(permset_, "choice", nullptr, 0);
  permset_->setChildLayout(choice_, MuLayout::Natural | MuLayout::AtStart, 1);

  permcustom_ = MuLayout::create(settingsLayout_, "permcustom", MuLayout::Vertical);
  MuLayout* heading = MuLayout::create(permcustom_, "heading", MuLayout::Horizontal);
  mui::MuStatic* allow =
      mui::MuStatic::create(heading, "allow", XN_TEXT(textkey::sui_optperm_allow), 2);
  mui::MuStatic* deny =
      mui::MuStatic::create(heading, "deny", XN_TEXT(textkey::sui_optperm_deny), 2);
  columnWidth_ = std::max(allow->minWidth(1), deny->minWidth(1));
  heading->setChildLayout(allow, MuLayout::Fixed, columnWidth_);
  heading->setChildLayout(deny, MuLayout::Fixed, columnWidth_);
  for (char code : {'s', 'k', 'p', 'c'})
    addPermissionRow(code);
  customHelp_ =
      mui::MuStatic::create(permcustom_, "help", XN_TEXT(textkey::sui_optperm_custom_help), 5);
}

void PermissionsEditor::addPermissionRow(char code) {
  using mui::MuLayout;
  const xnauth::PermissionDefn* definition = xnauth::lookupPermissionDefn(code);
  XN_ASSERT(definition);
  const char name[] = {code, '\0'};
  MuLayout* row = MuLayout::create(permcustom_, name, MuLayout::Horizontal);
  if (mui::MuElement* last = permcustom_->find("q"); last && last != row)
    permcustom_->moveChild(row, MuLayout::Before, last);
  addBoxColumn(row, "allow", columnWidth_, XN_TEXT(textkey::sui_optperm_allow_tip));
  addBoxColumn(row, "deny", columnWidth_, XN_TEXT(textkey::sui_optperm_deny_tip));
  mui::MuStatic* description = mui::MuStatic::create(row, "name", definition->description.get(), 1);
  row->setChildLayout(description, MuLayout::Weighted, 1);
}

void PermissionsEditor::addScheme(const char* name, PermissionsScheme* scheme) {
  std::unique_ptr<PermissionsScheme>& slot = schemes_[name];
  if (slot)
    replacedSchemes_.push_back(std::move(slot));
  slot.reset(scheme);
}

void PermissionsEditor::setScheme(PermissionsScheme* scheme) {
  list_->removeAll();
  schemeStartIndex = 0;
  schemeEndIndex = 0;
  while (buttons_->childCount() > 0)
    buttons_->remove(buttons_->getChild(0));
  buttons_->setVisible(false);
  scheme_ = scheme;
  if (scheme_)
    scheme_->activate();
}

void PermissionsEditor::addButton(const char* name, const char* label, const char* tip) {
  if (buttons_->find(name))
    return;
  mui::MuButton* button = mui::MuButton::create(buttons_, name, label, 0, 0, 1);
  if (tip)
    button->setToolTip(tip);
  buttons_->setVisible(true);
}

void PermissionsEditor::enableButton(const char* name, bool enabled) {
  if (mui::MuElement* button = buttons_->find(name))
    button->setEnabled(enabled);
}

void PermissionsEditor::setHelpText(const char*) {}

void PermissionsEditor::insertEntry(int index, const char* text, const char* imageName) {
  requireIndex(index >= 0, "index >= 0");
  int row = index + schemeStartIndex;
  requireIndex(row <= schemeEndIndex, "index <= schemeEndIndex");
  ++schemeEndIndex;
  list_->insertRow(row);
  list_->setCell(row, nameColumn, text);
  list_->setCell(row, imageColumn, imageName);
}

void PermissionsEditor::removeEntry(int index) {
  requireIndex(index >= 0, "index >= 0");
  int row = index + schemeStartIndex;
  requireIndex(row <= schemeEndIndex, "index <= schemeEndIndex");
  --schemeEndIndex;
  list_->removeRow(row);
  selectEntry(index - 1);
}

void PermissionsEditor::selectEntry(int index) {
  list_->setSelection(schemeStartIndex + index);
  if (scheme_)
    scheme_->selectionChanged(index);
  updateForm(true);
  relayoutForm();
}

int PermissionsEditor::getSelectedEntry() {
  return list_->getSelection() - schemeStartIndex;
}

void PermissionsEditor::handleEvent(mui::MuElement*, int event) {
  if (event != mui::EventActivated || !scheme_)
    return;
  int row = list_->getSelection();
  if (row >= schemeStartIndex && row < schemeEndIndex)
    scheme_->entryActivated();
}

void PermissionsEditor::clicked(mui::MuElement* source) {
  if (scheme_ && source->parent() == buttons_)
    scheme_->buttonClicked(source->name());
}

void PermissionsEditor::changed(mui::MuElement* source) {
  int row = list_->getSelection();
  if (source == list_) {
    if (row < schemeStartIndex || row >= schemeEndIndex)
      setHelpText(nullptr);
    if (scheme_)
      scheme_->selectionChanged(row < schemeStartIndex ? -1 : row - schemeStartIndex);
    updateForm(true);
    relayoutForm();
  } else if (source == choice_) {
    choosePreset(choice_->getValue(), row);
  } else {
    boxChanged(source, row);
  }
}

void PermissionsEditor::choosePreset(int preset, int row) {
  if (!current_)
    return;
  switch (preset) {
  case NoAccess:
    *current_ = xnauth::Permissions();
    break;
  case ViewOnly:
  case Normal:
  case Administrative:
    for (const auto& known : presetTexts) {
      if (known.id == preset)
        *current_ = xnauth::Permissions(known.text);
    }
    break;
  case Custom:
    // Keeps the letters; from now on the set is no preset's text.
    current_->normalize();
    break;
  default:
    break;
  }
  if (scheme_)
    scheme_->permissionsChanged(row - schemeStartIndex, 0);
  updateForm(false);
  relayoutForm();
}

void PermissionsEditor::boxChanged(mui::MuElement* source, int row) {
  if (!current_)
    return;
  for (int i = 0; i < permcustom_->childCount(); ++i) {
    mui::MuElement* line = permcustom_->getChild(i);
    bool isAllow = line->find("allow.check") == source;
    if (!isAllow && line->find("deny.check") != source)
      continue;
    char code = line->name()[0];
    bool on = static_cast<mui::MuCheck*>(source)->getValue();
    // Both boxes show one state, so turning one on turns the other off.
    current_->setState(code, on ? (isAllow ? xnauth::Allow : xnauth::Deny) : xnauth::Unset);
    if (scheme_)
      scheme_->permissionsChanged(row - schemeStartIndex, code);
    updateForm(false);
    relayoutForm();
    return;
  }
}

mui::MuCheck* PermissionsEditor::boxOf(char code, const char* column) {
  const char path[] = {code, '.', '\0'};
  std::string full = std::string(path) + column + ".check";
  return static_cast<mui::MuCheck*>(permcustom_->find(full.c_str()));
}

void PermissionsEditor::updateForm(bool rebuildChoice) {
  int row = list_->getSelection();
  if (row < 0) {
    current_ = nullptr;
    choice_->setEnabled(false);
    customHelp_->setVisible(false);
    for (const xnauth::PermissionDefn& definition : xnauth::getPermissionDefns()) {
      for (const char* column : {"allow", "deny"}) {
        if (mui::MuCheck* box = boxOf(definition.code, column))
          box->setEnabled(false);
      }
    }
    fillPresetChoice(true);
    return;
  }
  if (!scheme_)
    return;
  settings_->setVisible(true);
  settingsLayout_->setVisible(true);
  bool locked = false, enabled = true, flag = false;
  current_ = scheme_->getPermissions(row - schemeStartIndex, locked, enabled, flag);
  permset_->setVisible(true);
  permcustom_->setVisible(true);

  bool custom = false;
  if (rebuildChoice) {
    fillPresetChoice(false);
    int preset = Custom;
    // By text, not by letters: a preset written out letter by letter is custom.
    for (const auto& known : presetTexts) {
      if (current_->equalsText(xnauth::Permissions(known.text))) {
        preset = known.id;
        break;
      }
    }
    choice_->setValue(preset);
    custom = preset == Custom;
  } else {
    custom = choice_->getValue() == Custom;
  }
  choice_->setEnabled(enabled);
  choice_->setLocked(locked);

  for (const xnauth::PermissionDefn& definition : xnauth::getPermissionDefns()) {
    mui::MuCheck* allow = boxOf(definition.code, "allow");
    mui::MuCheck* deny = boxOf(definition.code, "deny");
    if (!allow || !deny)
      continue;
    xnauth::PermissionState state = current_->getState(definition.code);
    // A preset shows its letters as allowed, and never a denial.
    allow->setValue(state == xnauth::Allow);
    deny->setValue(custom && state == xnauth::Deny);
    for (mui::MuCheck* box : {allow, deny}) {
      box->setEnabled(custom && enabled);
      box->setLocked(locked);
    }
  }
  permcustom_->moveChild(customHelp_, mui::MuLayout::ToEnd, nullptr);
  customHelp_->setVisible(custom);
  form_->relayout();
}

void PermissionsEditor::fillPresetChoice(bool withNoAccess) {
  choice_->removeAll();
  if (withNoAccess)
    choice_->addItem(NoAccess, XN_TEXT(textkey::sui_optperm_noaccess));
  choice_->addItem(ViewOnly, XN_TEXT(textkey::sui_optperm_view));
  choice_->addItem(Normal, XN_TEXT(textkey::sui_optperm_normal));
  choice_->addItem(Administrative, XN_TEXT(textkey::sui_optperm_admin));
  choice_->addItem(Custom, XN_TEXT(textkey::sui_optperm_custom));
}

void PermissionsEditor::relayoutForm() {
  form_->relayout();
  if (form_->parent())
    form_->parent()->relayout();
}

} // namespace sui
