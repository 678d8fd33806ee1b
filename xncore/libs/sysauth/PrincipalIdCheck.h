// The check that turns the id of a principal into a system id. It logs its
// failures on source "PrincipalIdCheckerWin".
#pragma once

#include "os/Sid.h"
#include "sysauth/SecurityPrincipal.h"

namespace sysauth {

/// Keeps a SID string as it is; looks anything else up as an account of the
/// principal's kind and replaces the id by the account's system id. An id
/// "<LOCAL>\..." is looked up with "<LOCAL>" replaced by `machine`, or by this
/// computer's name when that is null, and keeps its entered form in
/// `enteredId`. On failure the id is left as it was read, the reason goes to
/// `rejection` when given, and false is returned.
bool checkPrincipalId(SecurityPrincipal& principal, const char* machine,
                      SecurityPrincipal::Rejection* rejection = nullptr);

/// How the check looks an account up by name: os::sidFromName unless replaced.
using AccountLookup = os::Sid (*)(const char* name, const char* machine, bool& isGroup);

/// Replaces the look-up, so that callers that must not wait on the system's
/// account databases can supply their own; null restores os::sidFromName.
/// Returns the previous look-up.
AccountLookup setAccountLookup(AccountLookup lookup) noexcept;

} // namespace sysauth
