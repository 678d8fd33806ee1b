#include "cloudAuth/CloudSsoEntries.h"

#include <string_view>

namespace cloudAuth {

std::vector<CloudSsoEntry> splitCloudSsoEntries(const char* text) {
  std::vector<CloudSsoEntry> entries;
  std::string_view rest(text);
  while (!rest.empty()) {
    std::size_t comma = rest.find(',');
    std::string_view piece = rest.substr(0, comma);
    rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
    std::size_t first = piece.find(':');
    if (first == std::string_view::npos || first == 0)
      continue;
    std::size_t last = piece.rfind(':');
    CloudSsoEntry entry;
    entry.group = piece.substr(0, first);
    entry.name = first == last ? entry.group : piece.substr(first + 1, last - first - 1);
    entry.permissions = piece.substr(last + 1);
    if (entry.permissions.empty())
      entry.permissions = "d";
    entries.push_back(std::move(entry));
  }
  return entries;
}

} // namespace cloudAuth
