#include "plat/NumParse.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "plat/Exception.h"

namespace plat {

namespace {

constexpr const char* intFailure = "Failed to parse integer";
constexpr const char* s64Failure = "Failed to parse S64 integer";
constexpr const char* u64Failure = "Failed to parse U64 integer";

// Puts errno back on every way out, so that parsing never disturbs an error
// value the caller holds.
class ErrnoKeeper {
public:
  ErrnoKeeper() noexcept : saved_(errno) { errno = 0; }
  ~ErrnoKeeper() { errno = saved_; }
  ErrnoKeeper(const ErrnoKeeper&) = delete;
  ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

private:
  int saved_;
};

// One conversion by the C library, judged by the shared rules. `Wide` is the
// library's result type, `Result` what the caller gets.
template <class Result, class Wide, class Convert>
bool convert(Result& result, const char*& cursor, int base, Convert libraryConvert) noexcept {
  result = 0;
  // The C library rejects such a base without setting `end`, so it is refused here.
  if (!cursor || base < 0 || base == 1 || base > 36)
    return false;
  ErrnoKeeper keeper;
  char* end = nullptr;
  Wide value = libraryConvert(cursor, &end, base);
  if (end == cursor)
    return false;
  constexpr bool isSigned = std::numeric_limits<Result>::is_signed;
  if (isSigned) {
    if (value > static_cast<Wide>(std::numeric_limits<Result>::max()) ||
        value < static_cast<Wide>(std::numeric_limits<Result>::min()))
      return false;
    if ((value == static_cast<Wide>(std::numeric_limits<Result>::max()) ||
         value == static_cast<Wide>(std::numeric_limits<Result>::min())) &&
        errno == ERANGE)
      return false;
  } else {
    // The library negates "-1" into the all-ones value without a word.
    if (std::memchr(cursor, '-', static_cast<std::size_t>(end - cursor)))
      return false;
    if (value > static_cast<Wide>(std::numeric_limits<Result>::max()))
      return false;
    if ((value == static_cast<Wide>(std::numeric_limits<Result>::max()) || value == 0) &&
        errno == ERANGE)
      return false;
  }
  result = static_cast<Result>(value);
  cursor = end;
  return true;
}

long long toLongLong(const char* text, char** end, int base) { return std::strtoll(text, end, base); }

unsigned long long toUnsignedLongLong(const char* text, char** end, int base) {
  return std::strtoull(text, end, base);
}

template <class Result>
bool tryParse(Result& result, const char*& cursor, int base) noexcept {
  if constexpr (std::numeric_limits<Result>::is_signed)
    return convert<Result, long long>(result, cursor, base, toLongLong);
  else
    return convert<Result, unsigned long long>(result, cursor, base, toUnsignedLongLong);
}

template <class Result>
Result parse(const char*& cursor, int base, const char* failure) {
  Result result;
  if (!tryParse(result, cursor, base))
    throw BadNum(failure);
  return result;
}

template <class Result>
Result parseFull(const char* text, int base, const char* failure, Result min, Result max) {
  Result result;
  const char* cursor = text;
  if (!tryParse(result, cursor, base) || *cursor != '\0' || result < min || result > max)
    throw BadNum(failure);
  return result;
}

} // namespace

std::int32_t parseInt(const char*& cursor, int base) { return parse<std::int32_t>(cursor, base, intFailure); }

std::int64_t parseS64(const char*& cursor, int base) { return parse<std::int64_t>(cursor, base, s64Failure); }

std::uint64_t parseU64(const char*& cursor, int base) { return parse<std::uint64_t>(cursor, base, u64Failure); }

std::uint32_t parseUnsigned(const char*& cursor, int base) {
  return parse<std::uint32_t>(cursor, base, intFailure);
}

bool tryParseInt(std::int32_t& result, const char*& cursor, int base) noexcept {
  return tryParse(result, cursor, base);
}

bool tryParseS64(std::int64_t& result, const char*& cursor, int base) noexcept {
  return tryParse(result, cursor, base);
}

bool tryParseU64(std::uint64_t& result, const char*& cursor, int base) noexcept {
  return tryParse(result, cursor, base);
}

bool tryParseUnsigned(std::uint32_t& result, const char*& cursor, int base) noexcept {
  return tryParse(result, cursor, base);
}

std::int32_t parseIntFull(const char* text, int base, const char* message, std::int32_t min,
                          std::int32_t max) {
  return parseFull(text, base, message ? message : intFailure, min, max);
}

std::int64_t parseS64Full(const char* text, int base) {
  return parseFull(text, base, s64Failure, std::numeric_limits<std::int64_t>::min(),
                   std::numeric_limits<std::int64_t>::max());
}

std::uint64_t parseU64Full(const char* text, int base) {
  return parseFull(text, base, u64Failure, std::uint64_t{0},
                   std::numeric_limits<std::uint64_t>::max());
}

std::uint32_t parseUnsignedFull(const char* text, int base, const char* message, std::uint32_t min,
                                std::uint32_t max) {
  return parseFull(text, base, message ? message : intFailure, min, max);
}

} // namespace plat
