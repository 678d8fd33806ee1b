#include "sysauth/PrincipalIdCheck.h"

#include "os/Accounts.h"
#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/LogSrc.h"
#include "plat/StringUtils.h"

#include <utility>

namespace sysauth {

namespace {

plat::LogSrc idCheckLog("PrincipalIdCheckerWin");

AccountLookup accountLookup = &os::sidFromName;

constexpr const char* localMarker = "<LOCAL>";

} // namespace

AccountLookup setAccountLookup(AccountLookup lookup) noexcept {
  return std::exchange(accountLookup, lookup ? lookup : &os::sidFromName);
}

bool checkPrincipalId(SecurityPrincipal& principal, const char* machine,
                      SecurityPrincipal::Rejection* rejection) {
  using Rejection = SecurityPrincipal::Rejection;
  if (os::parseSid(principal.id.get()))
    return true;
  if (plat::startsWith(principal.id.get(), "<LOCAL>\\")) {
    principal.enteredId = std::move(principal.id);
    plat::String here = machine ? plat::String(machine) : os::computerName();
    principal.id = plat::replaceAll(principal.enteredId.get(), localMarker, here.get());
  }
  Rejection why = Rejection::NoSuchAccount;
  try {
    bool isGroup = principal.isGroup;
    os::Sid sid = accountLookup(principal.id.get(), machine, isGroup);
    if (isGroup != principal.isGroup) {
      why = principal.isGroup ? Rejection::ExpectedGroup : Rejection::UnexpectedGroup;
      throw plat::Exception(principal.isGroup ? "expected a group" : "didn't expect a group");
    }
    principal.id = os::sidToString(sid);
    return true;
  } catch (const plat::Exception& e) {
    if (!principal.enteredId.isNull())
      principal.id = std::move(principal.enteredId);
    idCheckLog.error("ID '%s' cannot be converted to a SID: %s", principal.id.get(), e.what());
    if (rejection)
      *rejection = why;
    return false;
  }
}

} // namespace sysauth
