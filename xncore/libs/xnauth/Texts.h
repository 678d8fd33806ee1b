// The texts of the access model's catalog keys. Every user-visible text of the
// alphabet and of the permission sets is read by key through lookupText, so that
// the translation catalogs, once they exist, take over in this one function.
#pragma once

namespace xnauth {

/// The text of catalog key `key` in the language in force, or the key itself
/// when no text is known for it. The result lives as long as the process.
const char* lookupText(const char* key) noexcept;

} // namespace xnauth
