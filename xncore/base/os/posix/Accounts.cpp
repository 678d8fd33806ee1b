// Accounts from the name service switch. An account's id is its canonical
// name: ids on this system are written as names, SIDs only for the well-known
// ones.
#include "os/Accounts.h"

#include "plat/Exception.h"
#include "plat/NameCompare.h"
#include "plat/StringUtils.h"

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

namespace os {

namespace {

plat::Exception noSuchAccount() {
  return plat::Exception("no such account");
}

// Runs one of the reentrant look-ups of the name service switch, growing the
// buffer while it is too small, and copies the entry's name out of the buffer.
// Null when there is no such entry.
template <class Entry, class Call>
plat::String lookUpName(const char* function, char* Entry::*name, Call call) {
  static constexpr std::size_t maxBuffer = std::size_t{1} << 24;
  std::vector<char> buffer(1024);
  for (;;) {
    Entry entry;
    Entry* found = nullptr;
    int error = call(&entry, buffer.data(), buffer.size(), &found);
    if (error == ERANGE && buffer.size() < maxBuffer) {
      buffer.resize(buffer.size() * 2);
      continue;
    }
    // Some modules report a missing entry as ENOENT rather than by a null result.
    if (error != 0 && error != ENOENT)
      throw plat::SystemException(function, error);
    return found ? plat::String(found->*name) : plat::String();
  }
}

// The canonical name of the user or group `name`, or null when there is none.
plat::String canonicalName(const char* name, bool isGroup) {
  if (isGroup)
    return lookUpName("getgrnam_r", &group::gr_name,
                      [name](group* entry, char* buffer, std::size_t size, group** found) {
                        return getgrnam_r(name, entry, buffer, size, found);
                      });
  return lookUpName("getpwnam_r", &passwd::pw_name,
                    [name](passwd* entry, char* buffer, std::size_t size, passwd** found) {
                      return getpwnam_r(name, entry, buffer, size, found);
                    });
}

// The name service has no view of other computers' accounts.
void requireThisComputer(const char* machine) {
  if (machine && !plat::equalsNoCase(machine, computerName().get()))
    throw plat::Exception(plat::formatted, "accounts of '%s' can't be looked up here", machine);
}

// "HOST\account" for this computer is the local "account"; any other domain
// stays in the name, for modules that know domain accounts in that form.
const char* localName(const char* name) {
  const char* backslash = std::strchr(name, '\\');
  if (!backslash)
    return name;
  plat::String host = plat::strDup(name, static_cast<int>(backslash - name));
  return plat::equalsNoCase(host.get(), computerName().get()) ? backslash + 1 : name;
}

} // namespace

Sid sidFromName(const char* name, const char* machine, bool& isGroup) {
  requireThisComputer(machine);
  const char* account = localName(name);
  for (bool group : {isGroup, !isGroup}) {
    plat::String canonical = canonicalName(account, group);
    if (!canonical.isNull()) {
      isGroup = group;
      return Sid::forAccount(canonical.get(), group);
    }
  }
  throw noSuchAccount();
}

AccountInfo accountFromSid(const Sid& sid, const char* machine) {
  requireThisComputer(machine);
  if (!sid.isAccountName()) {
    if (std::optional<AccountInfo> known = wellKnownAccount(sid))
      return std::move(*known);
    throw noSuchAccount();
  }
  plat::String canonical = canonicalName(sid.accountName(), sid.isGroupAccount());
  if (canonical.isNull())
    throw noSuchAccount();
  // A domain account comes as "DOMAIN\name"; a local one belongs to this computer.
  AccountInfo info;
  info.isGroup = sid.isGroupAccount();
  if (const char* backslash = std::strchr(canonical.get(), '\\')) {
    info.domain = plat::strDup(canonical.get(), static_cast<int>(backslash - canonical.get()));
    info.name = plat::String(backslash + 1);
  } else {
    info.domain = computerName();
    info.name = std::move(canonical);
  }
  plat::upperAscii(info.domain.data());
  return info;
}

Sid currentUserSid() {
  uid_t uid = geteuid();
  plat::String name =
      lookUpName("getpwuid_r", &passwd::pw_name,
                 [uid](passwd* entry, char* buffer, std::size_t size, passwd** found) {
                   return getpwuid_r(uid, entry, buffer, size, found);
                 });
  if (name.isNull())
    throw noSuchAccount();
  return Sid::forAccount(name.get(), false);
}

plat::String computerName() {
  char host[256];
  if (gethostname(host, sizeof host) != 0)
    return plat::String("");
  host[sizeof host - 1] = '\0';
  std::size_t label = std::min<std::size_t>(std::strcspn(host, "."), 16);
  return plat::strDup(host, static_cast<int>(label));
}

} // namespace os
