// smisc::NameResolverSystemAuth: what the list of the system scheme shows for
// an id. An account's name is qualified by its domain ("HOST\name"), a local
// user's full name stands in front of it, and a directory account shows the
// directory's display name and principal name where the system has them. The
// empty id is the owner of the server process and the creator-owner id the
// user logged in at the desktop; both are named for their role. Look-ups that
// fail leave no name, so the list shows the id. Typed names are kept as they
// stand. Answers are cached (see DisplayNameCache).
#pragma once

#include "smisc/DisplayNameCache.h"

namespace os {
class Sid;
}

namespace smisc {

class NameResolverSystemAuth : public DisplayNameCache {
public:
  /// A copy of `name`: typed names are used as they stand.
  plat::String canonicalName(const char* name, bool isGroup) override;

  /// "Full Name (DOMAIN\name)", or "DOMAIN\name" alone when there is no full
  /// name; throws plat::Exception when the account can't be found.
  static plat::String accountDisplayName(const os::Sid& sid);

protected:
  plat::String lookUpDisplayName(const char* id, const char* enteredId, bool isGroup) override;
};

} // namespace smisc
