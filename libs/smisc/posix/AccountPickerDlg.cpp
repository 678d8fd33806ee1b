#include "smisc/posix/AccountPickerDlg.h"

#include "loc/Localize.h"
#include "mui/Events.h"
#include "mui/MuButton.h"
#include "mui/MuButtonBar.h"
#include "mui/MuChoice.h"
#include "mui/MuDialog.h"
#include "mui/MuEdit.h"
#include "mui/MuLayout.h"
#include "mui/MuList.h"
#include "mui/MuSpacer.h"
#include "mui/MuStatic.h"
#include "mui/Mui.h"
#include "plat/NameCompare.h"
#include "smisc/TextKeys.h"

#include <algorithm>
#include <cctype>

namespace smisc {

namespace {

// Columns of both lists.
constexpr int imageColumn = 0;
constexpr int nameColumn = 1;
constexpr int fullNameColumn = 2;

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// Users and groups by name, a user before the group of the same name.
bool listedBefore(const os::AccountEntry& a, const os::AccountEntry& b) {
  int order = plat::compareNoCase(a.name.c_str(), b.name.c_str());
  return order != 0 ? order < 0 : !a.isGroup && b.isGroup;
}

mui::MuList* addAccountList(mui::MuLayout* layout, const char* name) {
  mui::MuList* list = mui::MuList::create(
      layout, name, mui::MuList::FitColumns | mui::MuList::KeepSelection, nullptr);
  list->addColumn(imageColumn, mui::MuList::ImageColumn, nullptr, -1);
  list->addColumn(nameColumn, mui::MuList::TextColumn, nullptr, -1);
  list->addColumn(fullNameColumn, mui::MuList::TextColumn, nullptr, -1);
  return list;
}

// A button at the right end of its own row.
void addButtonRow(mui::MuLayout* layout, const char* name, const char* label) {
  mui::MuLayout* row = mui::MuLayout::create(layout, nullptr, mui::MuLayout::Horizontal);
  row->setChildLayout(mui::MuSpacer::create(row, 0, 0), mui::MuLayout::Weighted, 1);
  mui::MuButton::create(row, name, label);
}

} // namespace

AccountPickerDlg::AccountPickerDlg(mui::MuDialog* owner, bool multiSelect,
                                   std::vector<os::AccountEntry> accounts)
    : accounts_(std::move(accounts)), multiSelect_(multiSelect) {
  using mui::MuLayout;
  std::stable_sort(accounts_.begin(), accounts_.end(), listedBefore);
  const mui::Size size = mui::Mui::textToPixels(mui::Size{900, 1000});
  dialog_.reset(mui::MuDialog::create("accountpicker", XN_TEXT(textkey::smisc_accountpicker_title),
                                      &size, mui::MuDialog::CodeModal, owner, nullptr));
  MuLayout* layout = MuLayout::create(dialog_.get(), nullptr, MuLayout::Vertical);

  MuLayout* filterRow = MuLayout::create(layout, nullptr, MuLayout::Horizontal);
  search_ = mui::MuEdit::create(filterRow, "search", XN_TEXT(textkey::smisc_accountpicker_search));
  filterRow->setChildLayout(search_, MuLayout::Weighted, 1);
  // The box takes the room beside its caption, not just its own least width.
  search_->setLabelLayout(search_->labelWidth() + mui::Mui::metric(mui::MetricLabelGap), -1);
  kind_ = mui::MuChoice::create(filterRow, "kind", XN_TEXT(textkey::smisc_accountpicker_show), 0);
  kind_->addItem(UsersAndGroups, XN_TEXT(textkey::smisc_accountpicker_show_all));
  kind_->addItem(Users, XN_TEXT(textkey::smisc_accountpicker_show_users));
  kind_->addItem(Groups, XN_TEXT(textkey::smisc_accountpicker_show_groups));
  kind_->setValue(UsersAndGroups);

  foundList_ = addAccountList(layout, "accounts");
  layout->setChildLayout(foundList_, MuLayout::Weighted, 1);
  addButtonRow(layout, "add", XN_TEXT(textkey::smisc_accountpicker_add_btn));
  mui::MuStatic::create(layout, "selected", XN_TEXT(textkey::smisc_accountpicker_selected),
                        mui::MuStatic::Text);
  chosenList_ = addAccountList(layout, "chosen");
  layout->setChildLayout(chosenList_, MuLayout::Fixed, mui::Mui::textToPixels(220));
  addButtonRow(layout, "remove", XN_TEXT(textkey::smisc_accountpicker_remove_btn));

  buttonBar_ = std::make_unique<mui::MuButtonBar>(
      layout, mui::MuButtonBar::Ok | mui::MuButtonBar::Cancel, true);
  buttonBar_->addButton(mui::MuButtonBar::Custom, "typed",
                        XN_TEXT(textkey::smisc_accountpicker_typed_btn));
  dialog_->addObserver(this);
}

AccountPickerDlg::~AccountPickerDlg() = default;

void AccountPickerDlg::setFilter(const char* search, int kind) {
  search_->setText(search);
  kind_->setValue(kind);
}

AccountPickerDlg::Outcome AccountPickerDlg::run() {
  outcome_ = Cancelled;
  filter();
  dialog_->relayout();
  search_->setFocus();
  dialog_->setVisible(true);
  return outcome_;
}

std::vector<os::AccountEntry> AccountPickerDlg::chosen() const {
  std::vector<os::AccountEntry> accounts;
  for (std::size_t index : chosen_)
    accounts.push_back(accounts_[index]);
  return accounts;
}

std::string AccountPickerDlg::search() {
  return search_->getText().get();
}

int AccountPickerDlg::kind() {
  return kind_->getValue();
}

void AccountPickerDlg::changed(mui::MuElement* source) {
  if (source == search_ || source == kind_)
    filter();
  else
    updateButtons();
}

void AccountPickerDlg::clicked(mui::MuElement* source) {
  if (source->name() && std::string(source->name()) == "add") {
    addHighlighted();
  } else if (source->name() && std::string(source->name()) == "remove") {
    removeHighlighted();
  } else if (buttonBar_->buttonId(source) == mui::MuButtonBar::Ok) {
    if (chosen_.empty())
      addHighlighted();
    close(Confirmed);
  } else if (buttonBar_->buttonId(source) == mui::MuButtonBar::Cancel) {
    close(Cancelled);
  } else if (buttonBar_->buttonId(source) == mui::MuButtonBar::Custom) {
    close(TypedName);
  }
}

void AccountPickerDlg::handleEvent(mui::MuElement* source, int event) {
  MuObserver::handleEvent(source, event);
  if (event == mui::EventActivated && source == foundList_)
    addHighlighted();
  else if (event == mui::EventActivated && source == chosenList_)
    removeHighlighted();
}

void AccountPickerDlg::filter() {
  std::string needle = lowered(search());
  int shown = kind();
  foundList_->removeAll();
  found_.clear();
  for (std::size_t index = 0; index < accounts_.size(); ++index) {
    const os::AccountEntry& account = accounts_[index];
    if ((shown == Users && account.isGroup) || (shown == Groups && !account.isGroup))
      continue;
    if (lowered(account.name).find(needle) == std::string::npos &&
        lowered(account.fullName).find(needle) == std::string::npos)
      continue;
    showAccount(foundList_, static_cast<int>(found_.size()), account);
    found_.push_back(index);
  }
  // The first match stands highlighted, so that Return takes it.
  foundList_->setSelection(found_.empty() ? -1 : 0);
  updateButtons();
}

void AccountPickerDlg::addHighlighted() {
  int row = foundList_->getSelection();
  if (row < 0)
    return;
  std::size_t index = found_[static_cast<std::size_t>(row)];
  if (std::find(chosen_.begin(), chosen_.end(), index) != chosen_.end())
    return;
  if (!multiSelect_) {
    chosen_.clear();
    chosenList_->removeAll();
  }
  showAccount(chosenList_, static_cast<int>(chosen_.size()), accounts_[index]);
  chosen_.push_back(index);
  updateButtons();
}

void AccountPickerDlg::removeHighlighted() {
  int row = chosenList_->getSelection();
  if (row < 0)
    return;
  chosen_.erase(chosen_.begin() + row);
  chosenList_->removeRow(row);
  chosenList_->setSelection(std::min(row, static_cast<int>(chosen_.size()) - 1));
  updateButtons();
}

void AccountPickerDlg::close(Outcome outcome) {
  outcome_ = outcome;
  // Hiding ends the run of the loop that run() started.
  dialog_->setVisible(false);
}

void AccountPickerDlg::updateButtons() {
  bool highlighted = foundList_->getSelection() >= 0;
  dialog_->find("add")->setEnabled(highlighted);
  dialog_->find("remove")->setEnabled(chosenList_->getSelection() >= 0);
  buttonBar_->button(mui::MuButtonBar::Ok, nullptr)->setEnabled(highlighted || !chosen_.empty());
}

void AccountPickerDlg::showAccount(mui::MuList* list, int row, const os::AccountEntry& account) {
  list->addRow(row, account.isGroup ? "group" : "user", account.name.c_str(),
               account.fullName.c_str());
}

} // namespace smisc
