// smisc::AccountPickerDlg: the directory object picker of this platform, a
// dialog that lists the users and groups the account databases enumerate,
// each with its full name. The search box filters as one types, on the name
// and the full name alike and without regard to case; the choice above the
// list shows users, groups or both. The highlighted account goes into the
// selection below with Add or a double click (with several allowed, or in
// place of the one there); Ok takes the selection, or the highlighted account
// when the selection is empty. "Enter a name..." closes the picker for the
// dialog in which a name is typed, for accounts that can't be enumerated.
#pragma once

#include "mui/MuObserver.h"
#include "os/Accounts.h"

#include <memory>
#include <string>
#include <vector>

namespace mui {
class MuButtonBar;
class MuChoice;
class MuDialog;
class MuEdit;
class MuList;
} // namespace mui

namespace smisc {

class AccountPickerDlg : mui::MuObserver {
public:
  /// How the picker was closed.
  enum Outcome { Cancelled, Confirmed, TypedName };
  /// Values of the kind choice.
  enum Kind : int { UsersAndGroups = 0, Users = 1, Groups = 2 };

  /// A hidden picker over `owner` listing `accounts`.
  AccountPickerDlg(mui::MuDialog* owner, bool multiSelect, std::vector<os::AccountEntry> accounts);
  ~AccountPickerDlg() override;

  /// Starts with this search text and kind, as the user left them last time.
  void setFilter(const char* search, int kind);
  /// Shows the picker and runs the application loop until it closes.
  Outcome run();

  mui::MuDialog* dialog() const noexcept { return dialog_.get(); }
  /// The accounts chosen, in the order they were added.
  std::vector<os::AccountEntry> chosen() const;
  std::string search();
  int kind();

private:
  void changed(mui::MuElement* source) override;
  void clicked(mui::MuElement* source) override;
  void handleEvent(mui::MuElement* source, int event) override;

  /// Lists the accounts that pass the search and the kind.
  void filter();
  /// Puts the highlighted account into the selection.
  void addHighlighted();
  void removeHighlighted();
  void close(Outcome outcome);
  /// Enables the buttons as the two lists' selections allow.
  void updateButtons();
  static void showAccount(mui::MuList* list, int row, const os::AccountEntry& account);

  std::vector<os::AccountEntry> accounts_;
  bool multiSelect_;
  /// Indices into accounts_ of the rows of the found and the chosen list.
  std::vector<std::size_t> found_;
  std::vector<std::size_t> chosen_;
  Outcome outcome_ = Cancelled;

  std::unique_ptr<mui::MuDialog> dialog_;
  mui::MuEdit* search_;
  mui::MuChoice* kind_;
  mui::MuList* foundList_;
  mui::MuList* chosenList_;
  std::unique_ptr<mui::MuButtonBar> buttonBar_;
};

} // namespace smisc
