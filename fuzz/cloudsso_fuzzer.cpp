// The single sign-on scheme's two texts from outside: its access list (an
// edited or given parameter) and a typed group UUID. The input's first line
// is the UUID, the rest the list. Invariants: every entry has a group with
// neither ',' nor ':', a name and a permission field without ',', and a
// non-empty permission field without ':'; written in three fields and split
// again the entries come back the same. A UUID that passes yields bytes whose
// 32 hex digits pass again to the same bytes.
#include "FuzzCheck.h"

#include "cloudAuth/CloudSsoEntries.h"
#include "cloudAuth/GroupUuid.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace {

using xnfuzz::check;

bool same(const cloudAuth::CloudSsoEntry& a, const cloudAuth::CloudSsoEntry& b) {
  return a.group == b.group && a.name == b.name && a.permissions == b.permissions;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string input(reinterpret_cast<const char*>(data), size);
  input = input.substr(0, input.find('\0'));
  std::size_t newline = input.find('\n');
  std::string uuid = input.substr(0, newline);
  std::string list = newline == std::string::npos ? std::string() : input.substr(newline + 1);

  if (std::optional<cloudAuth::UuidBytes> bytes = cloudAuth::parseGroupUuid(uuid.c_str())) {
    char digits[33];
    for (std::size_t i = 0; i < bytes->size(); ++i)
      std::snprintf(digits + 2 * i, 3, "%02x", (*bytes)[i]);
    std::optional<cloudAuth::UuidBytes> again = cloudAuth::parseGroupUuid(digits);
    check(again && *again == *bytes);
  }

  std::vector<cloudAuth::CloudSsoEntry> entries = cloudAuth::splitCloudSsoEntries(list.c_str());
  std::string written;
  for (const cloudAuth::CloudSsoEntry& entry : entries) {
    check(!entry.group.empty() && entry.group.find_first_of(",:") == std::string::npos);
    check(entry.name.find(',') == std::string::npos);
    check(!entry.permissions.empty() && entry.permissions.find_first_of(",:") == std::string::npos);
    if (!written.empty())
      written += ',';
    written += entry.group + ":" + entry.name + ":" + entry.permissions;
  }
  std::vector<cloudAuth::CloudSsoEntry> again = cloudAuth::splitCloudSsoEntries(written.c_str());
  check(again.size() == entries.size());
  for (std::size_t i = 0; i < again.size() && i < entries.size(); ++i)
    check(same(again[i], entries[i]));
  return 0;
}
