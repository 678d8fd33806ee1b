// The one family of number parsers. Each accepts what the C library's strtol
// family accepts (leading whitespace, a sign, a base prefix when `base` is 0),
// fails on no digits and on overflow, and leaves errno as it found it.
#pragma once

#include <cstdint>

namespace plat {

// Parse at `cursor` and move it behind the digits; throw BadNum on failure.
std::int32_t parseInt(const char*& cursor, int base = 10);
std::int64_t parseS64(const char*& cursor, int base = 10);
std::uint64_t parseU64(const char*& cursor, int base = 10);
std::uint32_t parseUnsigned(const char*& cursor, int base = 10);

// As above, but answer false (with `result` 0) instead of throwing.
bool tryParseInt(std::int32_t& result, const char*& cursor, int base = 10) noexcept;
bool tryParseS64(std::int64_t& result, const char*& cursor, int base = 10) noexcept;
bool tryParseU64(std::uint64_t& result, const char*& cursor, int base = 10) noexcept;
bool tryParseUnsigned(std::uint32_t& result, const char*& cursor, int base = 10) noexcept;

// The whole text must be the number, within [min, max] where a range is given.
// A null `message` means the parser's standard text.
std::int32_t parseIntFull(const char* text, int base = 10, const char* message = nullptr,
                          std::int32_t min = INT32_MIN, std::int32_t max = INT32_MAX);
std::int64_t parseS64Full(const char* text, int base = 10);
std::uint64_t parseU64Full(const char* text, int base = 10);
std::uint32_t parseUnsignedFull(const char* text, int base = 10, const char* message = nullptr,
                                std::uint32_t min = 0, std::uint32_t max = UINT32_MAX);

} // namespace plat
