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
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace os {

namespace {

plat::Exception noSuchAccount() {
  return plat::Exception("no such account");
}

// Runs one of the reentrant calls of the name service switch, growing the
// buffer while the entry doesn't fit (a call then gives the same entry again),
// and hands the entry to `take`, or null when there is none.
template <class Entry, class Call, class Take>
void callGrowing(const char* function, Call call, Take take) {
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
    // Some modules report a missing entry (or the end of an enumeration) as
    // ENOENT rather than by a null result.
    if (error != 0 && error != ENOENT)
      throw plat::SystemException(function, error);
    take(error == 0 ? found : nullptr);
    return;
  }
}

// A look-up by name or id: one field of the entry, or null when there is none.
template <class Entry, class Call>
plat::String lookUpField(const char* function, char* Entry::*field, Call call) {
  plat::String value;
  callGrowing<Entry>(function, call, [&](const Entry* found) {
    if (found)
      value = plat::String(found->*field);
  });
  return value;
}

// Walks one database from its start, handing each entry to `take`, and closes
// the walk however it ends.
template <class Entry, void (*Start)(), void (*End)(), class Next, class Take>
void enumerate(const char* function, Next next, Take take) {
  struct Walk {
    Walk() { Start(); }
    ~Walk() { End(); }
  } walk;
  bool more = true;
  while (more) {
    callGrowing<Entry>(function, next, [&](const Entry* found) {
      more = found != nullptr;
      if (found)
        take(*found);
    });
  }
}

// What the comment field of the user database holds up to its first comma:
// the full name, which office and telephone may follow.
std::string fullNameOf(const char* comment) {
  return comment ? std::string(comment, std::strcspn(comment, ",")) : std::string();
}

// The canonical name of the user or group `name`, or null when there is none.
plat::String canonicalName(const char* name, bool isGroup) {
  if (isGroup)
    return lookUpField("getgrnam_r", &group::gr_name,
                       [name](group* entry, char* buffer, std::size_t size, group** found) {
                         return getgrnam_r(name, entry, buffer, size, found);
                       });
  return lookUpField("getpwnam_r", &passwd::pw_name,
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

plat::String localUserFullName(const char* name) {
  plat::String comment =
      lookUpField("getpwnam_r", &passwd::pw_gecos,
                  [name](passwd* entry, char* buffer, std::size_t size, passwd** found) {
                    return getpwnam_r(name, entry, buffer, size, found);
                  });
  return plat::String(fullNameOf(comment.get()).c_str());
}

std::vector<AccountEntry> enumerateAccounts() {
  std::vector<AccountEntry> accounts;
  // Several modules may know the same account (files and a directory cache).
  std::set<std::pair<std::string, bool>> seen;
  auto keep = [&](const char* name, std::string fullName, bool isGroup) {
    if (seen.emplace(name, isGroup).second)
      accounts.push_back({name, std::move(fullName), isGroup});
  };
  enumerate<passwd, setpwent, endpwent>("getpwent_r", getpwent_r, [&](const passwd& user) {
    keep(user.pw_name, fullNameOf(user.pw_gecos), false);
  });
  enumerate<group, setgrent, endgrent>("getgrent_r", getgrent_r, [&](const group& entry) {
    keep(entry.gr_name, std::string(), true);
  });
  return accounts;
}

bool directoryAccountNames(const Sid&, const char*, plat::String&, plat::String&) {
  // The name service switch translates no names: a domain account that one
  // of its modules knows shows its qualified name alone.
  return false;
}

Sid currentUserSid() {
  uid_t uid = geteuid();
  plat::String name =
      lookUpField("getpwuid_r", &passwd::pw_name,
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
