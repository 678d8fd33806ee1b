// smisc::DsObjectPicker: the platform's way of choosing users and groups from
// its account directories, for adding entries to the system scheme. The
// platform directory supplies pick(); what was chosen comes back as
// PickedObject records, and each result is logged on source "DsObjectPicker"
// at level 30. A platform without a usable picker fails with
// plat::SystemException, and the caller falls back on typing a name.
#pragma once

#include "plat/NonCopyable.h"
#include "smisc/PickedObject.h"

#include <memory>
#include <vector>

namespace mui {
class MuDialog;
}

namespace smisc {

class DsObjectPicker : plat::NonCopyable {
public:
  DsObjectPicker();
  ~DsObjectPicker();

  /// Shows the picker over `owner`, modally, and fills `results`: true when
  /// the user confirmed a choice, false when the user cancelled or asked to
  /// type a name instead (see typedNameRequested). With `multiSelect` several
  /// objects can be chosen at once.
  bool pick(mui::MuDialog* owner, bool multiSelect);
  /// After pick() gave false: the user asked to type a name, for an account
  /// that the picker can't show.
  bool typedNameRequested() const noexcept { return typedNameRequested_; }

  std::vector<PickedObject> results;

private:
  /// The platform's own state between picks.
  struct Native;

  void logResults() const;

  std::unique_ptr<Native> native_;
  bool typedNameRequested_ = false;
};

} // namespace smisc
