#include "smisc/NameResolverSystemAuth.h"

#include "loc/Localize.h"
#include "os/Accounts.h"
#include "plat/Exception.h"
#include "plat/NameCompare.h"
#include "smisc/TextKeys.h"

#include <cstring>
#include <optional>
#include <string>

namespace smisc {

namespace {

// Who an entry stands for.
enum class Role { Account, ServerOwner, DesktopUser };

// Stands for the user at the desktop, whoever that is.
const os::Sid& creatorOwner() {
  static const os::Sid sid = os::wellKnownSid(3, 0);
  return sid;
}

std::string qualifiedWith(const char* first, const char* second) {
  return std::string(first) + " (" + second + ")";
}

} // namespace

plat::String NameResolverSystemAuth::canonicalName(const char* name, bool) {
  return plat::String(name);
}

plat::String NameResolverSystemAuth::accountDisplayName(const os::Sid& sid) {
  os::AccountInfo account = os::accountFromSid(sid, nullptr);
  std::string domain = account.domain.orEmpty();
  if (domain.empty())
    domain = os::authorityName(sid);
  std::string qualified = domain + "\\" + account.name.get();
  bool local = domain == "BUILTIN" || plat::equalsNoCase(domain.c_str(), os::computerName().get());
  plat::String fullName;
  if (!local) {
    plat::String displayName, upn;
    if (os::directoryAccountNames(sid, domain.c_str(), displayName, upn)) {
      if (!upn.isNull() && *upn.get())
        qualified = upn.get();
      fullName = std::move(displayName);
    }
  } else if (!account.isGroup) {
    try {
      fullName = os::localUserFullName(account.name.get());
    } catch (const plat::Exception&) {
      // No full name, then.
    }
  }
  if (!fullName.isNull() && *fullName.get())
    return plat::String(qualifiedWith(fullName.get(), qualified.c_str()).c_str());
  return plat::String(qualified.c_str());
}

plat::String NameResolverSystemAuth::lookUpDisplayName(const char* id, const char* enteredId,
                                                       bool isGroup) {
  Role role = Role::Account;
  std::optional<os::Sid> sid;
  try {
    if (!*id) {
      // The server runs in user mode here, so its owner is this process's user.
      role = Role::ServerOwner;
      sid = os::currentUserSid();
    } else if (std::optional<os::Sid> parsed = os::parseSid(id)) {
      if (*parsed == creatorOwner()) {
        role = Role::DesktopUser;
        sid = os::currentUserSid();
      } else {
        sid = std::move(parsed);
      }
    } else {
      // Where ids are account names, a name can be a user and a group at once.
      sid = os::Sid::forAccount(id, isGroup);
    }
  } catch (const plat::Exception&) {
    // The role stands, without a name.
  }
  plat::String name;
  if (sid) {
    try {
      name = accountDisplayName(*sid);
    } catch (const plat::Exception&) {
      // No name: the list shows the id.
    }
  }
  if (role != Role::Account) {
    const char* shown =
        name.isNull() ? XN_TEXT(textkey::smisc_suimodulesystemauth_unknown_user) : name.get();
    return role == Role::ServerOwner
               ? XN_FORMAT(textkey::smisc_suimodulesystemauth_server_owner, shown)
               : XN_FORMAT(textkey::smisc_suimodulesystemauth_desktop_owner, shown);
  }
  if (enteredId && !name.isNull())
    return XN_FORMAT(textkey::smisc_suimodulesystemauth_canon_dname, enteredId, name.get());
  if (enteredId)
    return plat::String();
  return name;
}

} // namespace smisc
