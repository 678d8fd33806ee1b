#include "os/Accounts.h"

#include <cstring>

namespace os {

namespace {

struct WellKnown {
  const char* sid;
  const char* name;
  const char* domain;
};

// The names the security model gives these SIDs on every computer. All of them
// are groups or aliases, none a plain user.
constexpr WellKnown wellKnown[] = {
    {"S-1-0-0", "NULL SID", ""},
    {"S-1-1-0", "Everyone", ""},
    {"S-1-2-0", "LOCAL", ""},
    {"S-1-2-1", "CONSOLE LOGON", ""},
    {"S-1-3-0", "CREATOR OWNER", ""},
    {"S-1-3-1", "CREATOR GROUP", ""},
    {"S-1-3-4", "OWNER RIGHTS", ""},
    {"S-1-5-1", "DIALUP", "NT AUTHORITY"},
    {"S-1-5-2", "NETWORK", "NT AUTHORITY"},
    {"S-1-5-3", "BATCH", "NT AUTHORITY"},
    {"S-1-5-4", "INTERACTIVE", "NT AUTHORITY"},
    {"S-1-5-6", "SERVICE", "NT AUTHORITY"},
    {"S-1-5-7", "ANONYMOUS LOGON", "NT AUTHORITY"},
    {"S-1-5-9", "ENTERPRISE DOMAIN CONTROLLERS", "NT AUTHORITY"},
    {"S-1-5-10", "SELF", "NT AUTHORITY"},
    {"S-1-5-11", "Authenticated Users", "NT AUTHORITY"},
    {"S-1-5-12", "RESTRICTED", "NT AUTHORITY"},
    {"S-1-5-13", "TERMINAL SERVER USER", "NT AUTHORITY"},
    {"S-1-5-14", "REMOTE INTERACTIVE LOGON", "NT AUTHORITY"},
    {"S-1-5-15", "This Organization", "NT AUTHORITY"},
    {"S-1-5-18", "SYSTEM", "NT AUTHORITY"},
    {"S-1-5-19", "LOCAL SERVICE", "NT AUTHORITY"},
    {"S-1-5-20", "NETWORK SERVICE", "NT AUTHORITY"},
    {"S-1-5-32-544", "Administrators", "BUILTIN"},
    {"S-1-5-32-545", "Users", "BUILTIN"},
    {"S-1-5-32-546", "Guests", "BUILTIN"},
    {"S-1-5-32-547", "Power Users", "BUILTIN"},
    {"S-1-5-32-548", "Account Operators", "BUILTIN"},
    {"S-1-5-32-549", "Server Operators", "BUILTIN"},
    {"S-1-5-32-550", "Print Operators", "BUILTIN"},
    {"S-1-5-32-551", "Backup Operators", "BUILTIN"},
    {"S-1-5-32-552", "Replicator", "BUILTIN"},
    {"S-1-5-32-555", "Remote Desktop Users", "BUILTIN"},
    {"S-1-5-32-556", "Network Configuration Operators", "BUILTIN"},
    {"S-1-5-32-558", "Performance Monitor Users", "BUILTIN"},
    {"S-1-5-32-559", "Performance Log Users", "BUILTIN"},
    {"S-1-5-32-569", "Cryptographic Operators", "BUILTIN"},
    {"S-1-5-32-573", "Event Log Readers", "BUILTIN"},
    {"S-1-5-32-580", "Remote Management Users", "BUILTIN"},
};

} // namespace

std::optional<AccountInfo> wellKnownAccount(const Sid& sid) {
  if (sid.isAccountName())
    return std::nullopt;
  plat::String text = sidToString(sid);
  for (const WellKnown& entry : wellKnown) {
    if (std::strcmp(entry.sid, text.get()) == 0)
      return AccountInfo{plat::String(entry.name), plat::String(entry.domain), true};
  }
  return std::nullopt;
}

} // namespace os
