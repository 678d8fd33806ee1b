#include "cloudAuth/GroupUuid.h"

#include "plat/BinToHex.h"

namespace cloudAuth {

std::optional<UuidBytes> parseGroupUuid(const char* text) {
  UuidBytes bytes{};
  const char* cursor = text;
  for (std::uint8_t& byte : bytes) {
    if (*cursor == '-')
      ++cursor;
    // Stops at the terminator too, which is no digit.
    if (!plat::hexToBytes(cursor, 1, &byte))
      return std::nullopt;
    cursor += 2;
  }
  if (*cursor != '\0')
    return std::nullopt;
  return bytes;
}

} // namespace cloudAuth
