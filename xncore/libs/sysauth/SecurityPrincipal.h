// sysauth::SecurityPrincipal: one entry of an access list, who (a user or a
// group, named by an id) and what (a permission set). Its text form is
// "[%]id:permissions", with '%' marking a group. On reading, an account name
// is checked and turned into the text form of its system id; a name entered
// as "<LOCAL>\account" keeps that spelling for writing back.
#pragma once

#include "plat/DString.h"
#include "plat/String.h"
#include "xnauth/Permissions.h"

#include <string>

namespace sysauth {

class SecurityPrincipal {
public:
  /// Finds the names shown for principals. The application provides one.
  class NameResolver {
  public:
    virtual ~NameResolver() = default;
    /// The name to show for a principal, or null for none. May throw.
    virtual plat::String resolveDisplayName(const char* id, const char* enteredId,
                                            bool isGroup) = 0;
    /// What a name typed by the administrator becomes as an id.
    virtual plat::String canonicalName(const char* name, bool isGroup) = 0;
  };

  /// All empty, a user.
  SecurityPrincipal() = default;
  /// Copies the arguments and checks the id; throws plat::Exception
  /// "Invalid security principal" when the check fails.
  SecurityPrincipal(const char* id, const xnauth::Permissions& permissions, bool isGroup,
                    const char* displayName);

  /// Reads one entry of the text form and checks it: the result of validate.
  /// A bad permission text throws xnauth::Permissions::ParseException, with
  /// the id already replaced.
  bool parse(const char* text, const char* machine);
  /// Why the check of an id failed.
  enum class Rejection {
    None,
    NoSuchAccount,
    /// The entry is a group and the account a user.
    ExpectedGroup,
    /// The entry is a user and the account a group.
    UnexpectedGroup,
  };

  /// Checks the id, turning an account name into a system id; false, with the
  /// failure logged, when that fails, and the reason in `rejection` when
  /// given. "*" (all users) and the empty id (the server's owner) need no
  /// check unless the entry is a group. `machine` is where accounts are
  /// looked up; null for this computer.
  bool validate(const char* machine, Rejection* rejection = nullptr);
  /// The name to show: the resolver's answer (asked once it is set, and kept),
  /// else the id as entered, else the id. Never null.
  plat::String getDisplayName();
  /// As getDisplayName, without the copy: the text belongs to this principal
  /// and lasts until the principal changes.
  const char* displayNameText();
  /// Appends the entry's text form.
  void appendTo(plat::DString& target) const;
  void appendTo(std::string& target) const;

  /// The identity used for finding entries: a system id's text form once the
  /// check has converted it, otherwise the text as entered. Never null in use.
  plat::String id;
  /// The local form "<LOCAL>\..." the id was entered in, written back instead
  /// of `id`; null otherwise.
  plat::String enteredId;
  /// Cache of the name shown; null until known.
  plat::String displayName;
  xnauth::Permissions permissions;
  bool isGroup = false;
};

/// The process-wide resolver of display names; null unless the application sets it.
extern SecurityPrincipal::NameResolver* nameResolver;

} // namespace sysauth
