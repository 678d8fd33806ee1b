// os::Sid: the system id of a user or group. Its portable form is the SID of
// the access model: revision 1, a 48-bit identifier authority and up to 15
// sub-authorities, written "S-1-5-32-544". That text form is parsed and
// formatted here, the same on every platform, so a SID string is a valid id
// everywhere. Accounts of a system that has no SIDs are named by their
// canonical account name instead, and that name is then their text form.
#pragma once

#include "plat/String.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>

namespace os {

class Sid {
public:
  static constexpr int maxSubAuthorities = 15;
  static constexpr std::uint64_t maxAuthority = (std::uint64_t{1} << 48) - 1;

  /// A SID; asserts at most 15 sub-authorities and an authority of 48 bits.
  Sid(std::uint64_t authority, std::initializer_list<std::uint32_t> subAuthorities);
  /// An account of a system without SIDs, known by its canonical name.
  static Sid forAccount(const char* canonicalName, bool isGroup);

  bool isAccountName() const noexcept { return !accountName_.isNull(); }
  /// The canonical name of an account id; null for a SID.
  const char* accountName() const noexcept { return accountName_.get(); }
  /// Whether an account id names a group; false for a SID.
  bool isGroupAccount() const noexcept { return isGroupAccount_; }

  std::uint64_t authority() const noexcept { return authority_; }
  int subAuthorityCount() const noexcept { return subAuthorityCount_; }
  std::uint32_t subAuthority(int index) const;
  /// Appends a sub-authority; asserts that there is room.
  void addSubAuthority(std::uint32_t value);

  friend bool operator==(const Sid& a, const Sid& b) noexcept;

private:
  Sid() noexcept = default;

  std::uint64_t authority_ = 0;
  std::array<std::uint32_t, maxSubAuthorities> subAuthorities_{};
  int subAuthorityCount_ = 0;
  plat::String accountName_;
  bool isGroupAccount_ = false;
};

/// The SID written in `text`, or nothing when `text` isn't exactly a SID
/// string: "S-1-", the authority in decimal (below 2^32) or as "0x" and up to
/// twelve hex digits, then "-" and a decimal 32-bit value per sub-authority.
std::optional<Sid> parseSid(const char* text);

/// As parseSid; throws plat::Exception "bad SID" when `text` isn't a SID string.
Sid sidFromString(const char* text);

/// The text form: the SID string, or the canonical name of an account id.
plat::String sidToString(const Sid& sid);

/// The SID with one sub-authority under `authority`, such as S-1-5-18.
Sid wellKnownSid(std::uint64_t authority, std::uint32_t subAuthority);

/// The name of a SID's authority, for a SID whose look-up has no domain.
const char* authorityName(const Sid& sid) noexcept;

} // namespace os
