// sysauth::SecurityPrincipalList: an access list, the value of parameter
// "Permissions" for system accounts. Entries are comma-separated; the list is
// kept with all users before all groups, each kind in the order of the names
// shown (ASCII case folded), and entries that compare equal in the order they
// came. That order is part of the text the list renders.
#pragma once

#include "plat/String.h"
#include "sysauth/SecurityPrincipal.h"

#include <memory>
#include <vector>

namespace sysauth {

class SecurityPrincipalList {
public:
  /// Replaces the contents by the entries of `text`; empty entries are
  /// skipped. An entry whose id fails the check is kept as read, or dropped
  /// with `dropInvalid`. A bad permission text throws
  /// xnauth::Permissions::ParseException and leaves the entries read before it.
  void parse(const char* text, bool dropInvalid);
  /// The text form of all entries in order; "" for an empty list.
  plat::String render() const;
  /// Inserts in front of the first entry that it sorts before, or at the end;
  /// returns its index.
  int add(std::unique_ptr<SecurityPrincipal> principal);
  /// The index of the first entry of that kind whose id has exactly these bytes, or -1.
  int find(const char* id, bool isGroup) const;
  SecurityPrincipal& at(int index);
  void removeAt(int index);
  void clear() noexcept { principals_.clear(); }
  int size() const noexcept { return static_cast<int>(principals_.size()); }

private:
  void checkIndex(int index) const;

  std::vector<std::unique_ptr<SecurityPrincipal>> principals_;
};

} // namespace sysauth
