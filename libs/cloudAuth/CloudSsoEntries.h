// The text form of the single sign-on access list: comma-separated entries
// GROUP_UUID:NAME:PERMISSIONS. The group is what stands before the first
// colon, the permissions what stands behind the last, and the name all in
// between, so a name may hold colons but no comma. An entry with one colon
// names its group by the UUID; one without a colon or with an empty group is
// skipped without comment. Nothing is trimmed or escaped.
#pragma once

#include <string>
#include <vector>

namespace cloudAuth {

struct CloudSsoEntry {
  std::string group;
  std::string name;
  /// "d" when the text left the field empty.
  std::string permissions;
};

/// The entries of `text` in their order; the permission texts are not checked.
std::vector<CloudSsoEntry> splitCloudSsoEntries(const char* text);

} // namespace cloudAuth
