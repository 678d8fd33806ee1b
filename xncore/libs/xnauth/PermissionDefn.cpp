#include "xnauth/PermissionDefn.h"

#include "loc/Localize.h"
#include "plat/Assertion.h"
#include "xnauth/TextKeys.h"

#include <algorithm>
#include <cstring>

namespace xnauth {

namespace {

// The letter that always stands last in the definition list.
constexpr char lastCode = 'q';

struct Alphabet {
  std::list<PermissionDefn> defns;
  std::map<char, PermissionGroupMembers> groups;
  bool builtInsDefined = false;
};

// Function-local, so that feature objects may define letters from any static
// initialiser without depending on the order of initialisation.
Alphabet& storage() {
  static Alphabet alphabet;
  return alphabet;
}

std::vector<plat::String> splitParameters(const char* parameters) {
  std::vector<plat::String> names;
  if (!parameters)
    return names;
  for (const char* begin = parameters; *begin;) {
    const char* end = begin + std::strcspn(begin, ",");
    if (end > begin)
      names.push_back(plat::strDup(begin, static_cast<int>(end - begin)));
    begin = *end ? end + 1 : end;
  }
  return names;
}

const PermissionDefn* findDefn(const Alphabet& alphabet, char code) {
  auto it = std::find_if(alphabet.defns.begin(), alphabet.defns.end(),
                         [code](const PermissionDefn& defn) { return defn.code == code; });
  return it == alphabet.defns.end() ? nullptr : &*it;
}

void addDefinition(Alphabet& alphabet, char code, const char* description, const char* groups,
                   const char* parameters) {
  // The checks are reported with their expressions as written here, so this
  // reference carries the name of the container and formatting stays off.
  auto& permissionGroupDefns = alphabet.groups;
  // clang-format off
  XN_ASSERT(code >= minCode && code < minCode+nCodes && permissionGroupDefns.find(code) == permissionGroupDefns.end());
  XN_ASSERT(!lookupPermissionDefn(code));
  // clang-format on

  auto last = std::find_if(alphabet.defns.begin(), alphabet.defns.end(),
                           [](const PermissionDefn& defn) { return defn.code == lastCode; });
  alphabet.defns.insert(
      last, PermissionDefn{code, plat::String(description), splitParameters(parameters)});
  for (const char* group = groups; group && *group; ++group)
    alphabet.groups[*group][code - minCode] = true; // a new group starts with no members
}

void defineBuiltIns(Alphabet& alphabet) {
  struct BuiltIn {
    char code;
    const char* groups;
    const char* parameters;
    const char* key;
  };
  static constexpr BuiltIn builtIns[] = {
      {'s', "fdv", nullptr, textkey::xnauth_permissions_view_desc},
      {'k', "fdi", "AcceptKeyEvents", textkey::xnauth_permissions_keyevents_desc},
      {'p', "fdi", "AcceptPointerEvents", textkey::xnauth_permissions_ptrevents_desc},
      {'c', "fdi", "AcceptCutText,SendCutText", textkey::xnauth_permissions_cuttext_desc},
      {'q', "f", nullptr, textkey::xnauth_permissions_noquery_desc},
  };
  for (const BuiltIn& builtIn : builtIns)
    addDefinition(alphabet, builtIn.code, XN_TEXT(builtIn.key), builtIn.groups, builtIn.parameters);
}

// Every public operation goes through here, so the built-in letters exist
// before anything reads or adds to the alphabet. The flag is set first, so that
// defining the built-ins may use the public look-up.
Alphabet& alphabet() {
  Alphabet& alphabet = storage();
  if (!alphabet.builtInsDefined) {
    alphabet.builtInsDefined = true;
    defineBuiltIns(alphabet);
  }
  return alphabet;
}

} // namespace

void definePermission(char code, const char* description, const char* groups,
                      const char* parameters) {
  addDefinition(alphabet(), code, description, groups, parameters);
}

void undefinePermission(char code) {
  Alphabet& all = alphabet();
  all.defns.remove_if([code](const PermissionDefn& defn) { return defn.code == code; });
  if (code < minCode || code >= minCode + nCodes)
    return;
  for (auto& [group, members] : all.groups)
    members[code - minCode] = false;
}

const PermissionDefn* lookupPermissionDefn(char code) {
  return findDefn(alphabet(), code);
}

const std::list<PermissionDefn>& getPermissionDefns() {
  return alphabet().defns;
}

const std::map<char, PermissionGroupMembers>& getPermissionGroupDefns() {
  return alphabet().groups;
}

} // namespace xnauth
