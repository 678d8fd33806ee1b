#include "sysauth/SecurityPrincipal.h"

#include "loc/Localize.h"
#include "plat/Assertion.h"
#include "plat/Exception.h"
#include "sysauth/PrincipalIdCheck.h"
#include "sysauth/TextKeys.h"

#include <cstring>

namespace sysauth {

SecurityPrincipal::NameResolver* nameResolver = nullptr;

SecurityPrincipal::SecurityPrincipal(const char* givenId, const xnauth::Permissions& given,
                                     bool group, const char* givenName)
    : id(givenId), displayName(givenName), permissions(given), isGroup(group) {
  if (!validate(nullptr))
    throw plat::Exception("Invalid security principal");
}

bool SecurityPrincipal::parse(const char* text, const char* machine) {
  isGroup = text[0] == '%';
  const char* start = isGroup ? text + 1 : text;
  const char* colon = std::strchr(start, ':');
  id = plat::strDup(start, colon ? static_cast<int>(colon - start) : -1);
  enteredId = plat::String(); // belongs to the id just replaced
  permissions = xnauth::Permissions(colon ? colon + 1 : nullptr);
  displayName = plat::String();
  return validate(machine);
}

bool SecurityPrincipal::validate(const char* machine, Rejection* rejection) {
  if (id.isNull())
    plat::assertionFailed(plat::AssertionFail("id", __FILE__, __LINE__));
  if (!isGroup && std::strcmp(id.get(), "*") == 0) {
    displayName = plat::String(XN_TEXT(textkey::sysauth_securityprincipal_all_users));
    return true;
  }
  if (!isGroup && id.get()[0] == '\0')
    return true;
  return checkPrincipalId(*this, machine, rejection);
}

plat::String SecurityPrincipal::getDisplayName() {
  return plat::String(displayNameText());
}

const char* SecurityPrincipal::displayNameText() {
  if (displayName.isNull() && nameResolver) {
    try {
      displayName = nameResolver->resolveDisplayName(id.get(), enteredId.get(), isGroup);
    } catch (const plat::Exception&) {
      // The list then shows the id.
    }
  }
  if (!displayName.isNull() && displayName.get()[0] != '\0')
    return displayName.get();
  return enteredId.isNull() ? id.get() : enteredId.get();
}

void SecurityPrincipal::appendTo(std::string& target) const {
  if (isGroup)
    target += '%';
  target += enteredId.isNull() ? id.get() : enteredId.get();
  target += ':';
  target += permissions.getText();
}

void SecurityPrincipal::appendTo(plat::DString& target) const {
  std::string text;
  appendTo(text);
  target.append(text.c_str());
}

} // namespace sysauth
