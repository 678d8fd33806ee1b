// Locale names: "language", optionally "_" or "-" and a territory, optionally
// an encoding or modifier after "." or "@", which are ignored. These are the
// pure rules that the translations need: splitting, the usual territory of a
// language, the parsing and expansion of locale lists, and plural forms.
#pragma once

#include "plat/String.h"

#include <vector>

namespace loc {

struct LocaleName {
  plat::String language;
  plat::String territory; ///< null when the name has none
};

/// Splits `name`: the language ends at the first of "_-.@"; after "_" or "-"
/// the territory follows up to the first of ".@".
LocaleName splitLocale(const char* name);

/// The usual territory of `language` ("de" gives "DE"), or null.
const char* defaultTerritory(const char* language) noexcept;

/// Appends the locales of the ":"-separated `text` to `result` as
/// "language_territory", giving a bare language its default territory
/// (`defaultLanguage` takes `defaultTerritoryOf`, others the table). Empty
/// languages are dropped and names already in `result` are skipped.
void parseLocaleList(const char* text, std::vector<plat::String>& result,
                     const char* defaultLanguage, const char* defaultTerritoryOf);

/// Each locale followed by its bare language, then "en_US" and "en"; the first
/// position of a duplicate stands.
void expandLocales(const std::vector<plat::String>& list, std::vector<plat::String>& result);

/// "sing" or "many": the plural form that `count` takes in `locale`.
const char* pluralForm(const char* locale, int count);

} // namespace loc
