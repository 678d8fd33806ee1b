// The texts behind catalog keys, in English, for as long as the system has no
// translation catalogs. Every user-visible text of the base and of the
// parameter descriptions is read by key through here, so that the catalogs,
// when they arrive, take over in this one place.
#pragma once

#include "plat/String.h"

namespace plat {

/// The English text of catalog key `key`, or the key itself when none is
/// known. The result lives as long as the process.
const char* englishText(const char* key) noexcept;

/// The text of `key` with its one "%S" placeholder replaced by `argument`.
String englishFormat(const char* key, const char* argument);

} // namespace plat
