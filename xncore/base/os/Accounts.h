// The account look-ups under the id check of access lists and under the name
// resolver. The platform directory provides them; where the system has no
// SIDs, its accounts are ids in name form (see os::Sid) and the well-known
// SIDs take their names from one portable table.
#pragma once

#include "os/Sid.h"
#include "plat/String.h"

#include <optional>
#include <string>
#include <vector>

namespace os {

/// What a look-up of a system id yields.
struct AccountInfo {
  plat::String name;
  plat::String domain;  ///< upper case; empty for most well-known SIDs
  bool isGroup = false; ///< anything that isn't a plain user
};

/// The name of a well-known SID from the portable table, or nothing.
std::optional<AccountInfo> wellKnownAccount(const Sid& sid);

/// The id of the account `name`, on `machine` or, when null, here. A name
/// "HOST\account" whose HOST is this computer is looked up as "account".
/// Where a name can mean a user and a group, `isGroup` on entry says which
/// kind to take first; on return it tells the kind found. Throws
/// plat::Exception when there is no such account.
Sid sidFromName(const char* name, const char* machine, bool& isGroup);

/// The account that `sid` names, on `machine` or, when null, here. Throws
/// plat::Exception when there is none.
AccountInfo accountFromSid(const Sid& sid, const char* machine);

/// The account this process runs as.
Sid currentUserSid();

/// The full name that the account database gives the local user `name`, or
/// empty when it gives none or there is no such user.
plat::String localUserFullName(const char* name);

/// One account as an enumeration of the account databases gives it.
struct AccountEntry {
  std::string name;
  /// A user's full name; empty for groups and for users without one.
  std::string fullName;
  bool isGroup = false;
};

/// Every user, then every group, that the account databases enumerate, each
/// once, in the order they give them. Databases that can't be enumerated (as
/// many directory services by default) contribute nothing.
std::vector<AccountEntry> enumerateAccounts();

/// The display name and user principal name that the directory of `domain`
/// holds for the account `sid`, each empty when unknown. False when this
/// system has no directory to ask.
bool directoryAccountNames(const Sid& sid, const char* domain, plat::String& displayName,
                           plat::String& upn);

/// This computer's name, at most 16 characters; empty if unavailable.
plat::String computerName();

} // namespace os
