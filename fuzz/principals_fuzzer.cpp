// Access lists as they come from a command line or an edited parameter.
// Invariants: whatever a parse reads, also when a bad permission text stops
// it, renders to a text that parses to the same principals in the same order
// and renders back to the same text; a failed parse raises ParseException and
// nothing else. Entries kept with dropInvalid all pass the check again.
//
// The system's account look-up can take a fraction of a millisecond per name,
// so a stand-in answers instead: a name (after any "HOST\") starting with 'u'
// is a user, 'g' a group, 'b' both, and its lower-case form is its id.
#include "FuzzCheck.h"

#include "os/Sid.h"
#include "plat/Exception.h"
#include "plat/StringUtils.h"
#include "sysauth/PrincipalIdCheck.h"
#include "sysauth/SecurityPrincipalList.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

using xnfuzz::check;

os::Sid standInLookup(const char* name, const char*, bool& isGroup) {
  const char* backslash = std::strrchr(name, '\\');
  std::string account = backslash ? backslash + 1 : name;
  plat::lowerAscii(account.data());
  switch (account.empty() ? '\0' : account[0]) {
  case 'u':
    isGroup = false;
    break;
  case 'g':
    isGroup = true;
    break;
  case 'b':
    break;
  default:
    throw plat::Exception("no such account");
  }
  return os::Sid::forAccount(account.c_str(), isGroup);
}

bool samePrincipal(sysauth::SecurityPrincipal& a, sysauth::SecurityPrincipal& b) {
  return a.isGroup == b.isGroup && a.id == b.id && a.enteredId == b.enteredId &&
         a.permissions.equals(b.permissions) && a.permissions.equalsText(b.permissions);
}

void checkRoundTrip(sysauth::SecurityPrincipalList& list) {
  plat::String rendered = list.render();
  sysauth::SecurityPrincipalList reparsed;
  reparsed.parse(rendered.get(), false);
  check(reparsed.size() == list.size());
  for (int i = 0; i < list.size(); ++i)
    check(samePrincipal(list.at(i), reparsed.at(i)));
  check(reparsed.render() == rendered);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  sysauth::setAccountLookup(&standInLookup);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The system's texts are NUL-terminated: whatever follows a NUL is never seen.
  const char* bytes = reinterpret_cast<const char*>(data);
  std::string text(bytes, ::strnlen(bytes, size));

  sysauth::SecurityPrincipalList list;
  bool parsed = true;
  try {
    list.parse(text.c_str(), false);
  } catch (const xnauth::Permissions::ParseException& e) {
    check(std::strcmp(e.type(), "PermissionsParse") == 0);
    parsed = false;
  }
  checkRoundTrip(list);

  if (parsed) {
    sysauth::SecurityPrincipalList kept;
    kept.parse(text.c_str(), true);
    check(kept.size() <= list.size());
    sysauth::SecurityPrincipalList again;
    again.parse(kept.render().get(), true);
    check(again.size() == kept.size());
  }
  return 0;
}
