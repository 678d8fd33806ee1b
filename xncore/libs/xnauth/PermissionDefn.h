// The process-wide alphabet of permission letters: what each defined letter
// means, and the group letters that stand for several letters at once. The
// built-in letters are defined on the first use of any operation here; the
// feature libraries add theirs for as long as their feature objects live.
// Only the main thread reaches the alphabet, so nothing here is locked.
#pragma once

#include "plat/String.h"

#include <array>
#include <cstdint>
#include <list>
#include <map>
#include <vector>

namespace xnauth {

enum PermissionState : std::int32_t {
  Unset = 0, ///< neither allowed nor denied
  Allow = 1, ///< allowed; a member of a group may still get less
  Deny = 2,  ///< explicitly denied; nothing overrides this
};

/// Everything indexed by a letter is indexed by the letter minus minCode.
inline constexpr char minCode = 'a';
inline constexpr int nCodes = 26;

struct PermissionDefn {
  char code;
  /// In the language in force when the letter was defined; it doesn't follow a
  /// later change of locale.
  plat::String description;
  /// Names of the server parameters that switch the feature on or off globally.
  std::vector<plat::String> parameters;
};

/// Which letters a group stands for, indexed by letter minus minCode.
using PermissionGroupMembers = std::array<bool, nCodes>;

/// Adds `code` to the alphabet and to each group named in `groups` (null or
/// empty for none), creating groups as needed. `parameters` is a
/// comma-separated list of names, or null. Defining a group letter, a byte
/// outside 'a'..'z' or a letter twice is a fatal assertion.
void definePermission(char code, const char* description, const char* groups,
                      const char* parameters);
/// Removes `code` from the alphabet and from every group; the groups stay,
/// even when they become empty. An undefined letter is ignored.
void undefinePermission(char code);
/// The definition of `code`, or null.
const PermissionDefn* lookupPermissionDefn(char code);
/// The definitions in definition order, except that 'q' always stands last.
const std::list<PermissionDefn>& getPermissionDefns();
/// Every group letter with its members.
const std::map<char, PermissionGroupMembers>& getPermissionGroupDefns();

} // namespace xnauth
