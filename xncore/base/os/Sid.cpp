#include "os/Sid.h"

#include "plat/Assertion.h"
#include "plat/BinToHex.h"
#include "plat/DString.h"
#include "plat/Exception.h"

#include <algorithm>
#include <cinttypes>
#include <cstring>
#include <utility>

namespace os {

namespace {

int digitValue(char ch, int base) noexcept {
  int value = plat::hexDigitValue(ch);
  return value < 0 || value >= base ? -1 : value;
}

// Reads at least one digit at `cursor`. Unlike the C library's readers it takes
// nothing but digits: no blanks, no sign, no base prefix.
bool readNumber(const char*& cursor, int base, std::uint64_t max, std::uint64_t& value) noexcept {
  value = 0;
  const char* start = cursor;
  for (int digit; (digit = digitValue(*cursor, base)) >= 0; ++cursor) {
    if (value > (max - static_cast<std::uint64_t>(digit)) / static_cast<std::uint64_t>(base))
      return false;
    value = value * static_cast<std::uint64_t>(base) + static_cast<std::uint64_t>(digit);
  }
  return cursor != start;
}

} // namespace

Sid::Sid(std::uint64_t authority, std::initializer_list<std::uint32_t> subAuthorities)
    : authority_(authority) {
  XN_ASSERT(authority <= maxAuthority);
  for (std::uint32_t value : subAuthorities)
    addSubAuthority(value);
}

Sid Sid::forAccount(const char* canonicalName, bool isGroup) {
  XN_ASSERT(canonicalName && *canonicalName);
  Sid sid;
  sid.accountName_ = plat::String(canonicalName);
  sid.isGroupAccount_ = isGroup;
  return sid;
}

std::uint32_t Sid::subAuthority(int index) const {
  XN_ASSERT(index >= 0 && index < subAuthorityCount_);
  return subAuthorities_[static_cast<std::size_t>(index)];
}

void Sid::addSubAuthority(std::uint32_t value) {
  XN_ASSERT(!isAccountName() && subAuthorityCount_ < maxSubAuthorities);
  subAuthorities_[static_cast<std::size_t>(subAuthorityCount_++)] = value;
}

bool operator==(const Sid& a, const Sid& b) noexcept {
  if (a.isAccountName() || b.isAccountName())
    return a.accountName_ == b.accountName_ && a.isGroupAccount_ == b.isGroupAccount_;
  return a.authority_ == b.authority_ && a.subAuthorityCount_ == b.subAuthorityCount_ &&
         std::equal(a.subAuthorities_.begin(), a.subAuthorities_.begin() + a.subAuthorityCount_,
                    b.subAuthorities_.begin());
}

std::optional<Sid> parseSid(const char* text) {
  if (!text || std::strncmp(text, "S-1-", 4) != 0)
    return std::nullopt;
  const char* cursor = text + 4;
  std::uint64_t authority = 0;
  bool read = false;
  if (cursor[0] == '0' && (cursor[1] == 'x' || cursor[1] == 'X')) {
    cursor += 2;
    read = readNumber(cursor, 16, Sid::maxAuthority, authority);
  } else {
    read = readNumber(cursor, 10, UINT32_MAX, authority);
  }
  if (!read)
    return std::nullopt;
  Sid sid(authority, {});
  while (*cursor == '-') {
    ++cursor;
    std::uint64_t value = 0;
    if (sid.subAuthorityCount() == Sid::maxSubAuthorities ||
        !readNumber(cursor, 10, UINT32_MAX, value))
      return std::nullopt;
    sid.addSubAuthority(static_cast<std::uint32_t>(value));
  }
  if (*cursor)
    return std::nullopt;
  return sid;
}

Sid sidFromString(const char* text) {
  std::optional<Sid> sid = parseSid(text);
  if (!sid)
    throw plat::Exception("bad SID");
  return std::move(*sid);
}

plat::String sidToString(const Sid& sid) {
  if (sid.isAccountName())
    return plat::String(sid.accountName());
  plat::DString text("S-1-");
  if (sid.authority() <= UINT32_MAX)
    text.appendFormat("%" PRIu64, sid.authority());
  else
    text.appendFormat("0x%012" PRIX64, sid.authority());
  for (int i = 0; i < sid.subAuthorityCount(); ++i)
    text.appendFormat("-%" PRIu32, sid.subAuthority(i));
  return text.takeString();
}

Sid wellKnownSid(std::uint64_t authority, std::uint32_t subAuthority) {
  return Sid(authority, {subAuthority});
}

const char* authorityName(const Sid& sid) noexcept {
  if (sid.isAccountName())
    return "UNKNOWN AUTHORITY";
  switch (sid.authority()) {
  case 0:
    return "NULL SID AUTHORITY";
  case 1:
    return "WORLD SID AUTHORITY";
  case 2:
    return "LOCAL SID AUTHORITY";
  case 3:
    return "CREATOR SID AUTHORITY";
  case 5:
    return "NT AUTHORITY";
  default:
    return "UNKNOWN AUTHORITY";
  }
}

} // namespace os
