// The picker of this platform: a dialog of the program's own over the
// accounts that the name service switch enumerates. An account's system id is
// its canonical name, and its path the database and name it came from.
#include "smisc/DsObjectPicker.h"

#include "smisc/posix/AccountPickerDlg.h"

#include <string>

namespace smisc {

// What the user left in the picker's filter, offered again at the next pick.
struct DsObjectPicker::Native {
  std::string search;
  int kind = AccountPickerDlg::UsersAndGroups;
};

DsObjectPicker::DsObjectPicker() : native_(std::make_unique<Native>()) {}

DsObjectPicker::~DsObjectPicker() = default;

bool DsObjectPicker::pick(mui::MuDialog* owner, bool multiSelect) {
  results.clear();
  typedNameRequested_ = false;
  AccountPickerDlg picker(owner, multiSelect, os::enumerateAccounts());
  picker.setFilter(native_->search.c_str(), native_->kind);
  AccountPickerDlg::Outcome outcome = picker.run();
  native_->search = picker.search();
  native_->kind = picker.kind();
  typedNameRequested_ = outcome == AccountPickerDlg::TypedName;
  if (outcome != AccountPickerDlg::Confirmed)
    return false;
  for (const os::AccountEntry& account : picker.chosen()) {
    PickedObject object;
    object.sid = os::Sid::forAccount(account.name.c_str(), account.isGroup);
    object.name = plat::String(account.name.c_str());
    object.path = plat::String(((account.isGroup ? "group:" : "passwd:") + account.name).c_str());
    object.upn = plat::String("");
    object.isGroup = account.isGroup;
    results.push_back(std::move(object));
  }
  logResults();
  return true;
}

} // namespace smisc
