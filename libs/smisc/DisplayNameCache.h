// smisc::DisplayNameCache: a name resolver that asks for each principal's
// display name once. The access list is read again whenever a scheme becomes
// current or a text is applied, and every reading makes new principals; with
// accounts that come from a directory each name costs a round trip, so the
// answers are kept for the life of the resolver, "no name" included. A look-up
// that throws is not kept and is asked again next time.
#pragma once

#include "sysauth/SecurityPrincipal.h"

#include <map>
#include <optional>
#include <string>
#include <tuple>

namespace smisc {

class DisplayNameCache : public sysauth::SecurityPrincipal::NameResolver {
public:
  /// The kept answer for this id, entered id and kind, else lookUpDisplayName's.
  plat::String resolveDisplayName(const char* id, const char* enteredId, bool isGroup) final;
  /// Forgets every answer, so that changed accounts are looked up again.
  void clear() noexcept { names_.clear(); }

protected:
  /// The name to show, or null for none; may throw.
  virtual plat::String lookUpDisplayName(const char* id, const char* enteredId, bool isGroup) = 0;

private:
  // id, whether an entered id is given, the entered id, the kind
  using Key = std::tuple<std::string, bool, std::string, bool>;
  std::map<Key, std::optional<std::string>> names_;
};

} // namespace smisc
