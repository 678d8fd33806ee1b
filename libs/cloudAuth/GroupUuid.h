// The check of a group's UUID as the administrator types it: 32 hexadecimal
// digits, in either case, read as 16 bytes of two digits each. A single '-'
// may stand in front of any byte, so the usual 8-4-4-4-12 form, the bare
// digits and a dash between every byte all pass; two dashes in a row, a dash
// inside a byte or at the very end, and anything behind the digits do not.
// The entry keeps the text as typed; only the verdict counts.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace cloudAuth {

using UuidBytes = std::array<std::uint8_t, 16>;

/// The 16 bytes of `text`, or nothing when it isn't a UUID by the rule above.
std::optional<UuidBytes> parseGroupUuid(const char* text);

} // namespace cloudAuth
