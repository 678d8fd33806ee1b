// The account look-ups under the id check of access lists and under the name
// resolver. The platform directory provides them; where the system has no
// SIDs, its accounts are ids in name form (see os::Sid) and the well-known
// SIDs take their names from one portable table.
#pragma once

#include "os/Sid.h"
#include "plat/String.h"

#include <optional>

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

/// This computer's name, at most 16 characters; empty if unavailable.
plat::String computerName();

} // namespace os
