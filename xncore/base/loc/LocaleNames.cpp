#include "loc/LocaleNames.h"

#include "plat/DString.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace loc {

namespace {

struct TerritoryRow {
  const char* language;
  const char* territory;
};

// Sorted by language, for binary search.
constexpr TerritoryRow territories[] = {
    {"af", "ZA"}, {"be", "BY"}, {"bg", "BG"}, {"ca", "ES"}, {"cs", "CZ"}, {"da", "DK"},
    {"de", "DE"}, {"dz", "BT"}, {"el", "GR"}, {"en", "US"}, {"es", "ES"}, {"et", "EE"},
    {"fa", "IR"}, {"fi", "FI"}, {"fo", "FO"}, {"fr", "FR"}, {"ga", "IE"}, {"gu", "IN"},
    {"he", "IL"}, {"hi", "IN"}, {"hr", "HR"}, {"hu", "HU"}, {"hy", "AM"}, {"is", "IS"},
    {"it", "IT"}, {"iu", "CA"}, {"ja", "JP"}, {"ka", "GE"}, {"ko", "KR"}, {"lt", "LT"},
    {"lv", "LV"}, {"mk", "MK"}, {"mr", "IN"}, {"mt", "MT"}, {"nb", "NO"}, {"ne", "NP"},
    {"nl", "NL"}, {"nn", "NO"}, {"pl", "PL"}, {"pt", "BR"}, {"ro", "RO"}, {"ru", "RU"},
    {"sk", "SK"}, {"sl", "SI"}, {"sr", "RS"}, {"sv", "SE"}, {"th", "TH"}, {"to", "TO"},
    {"tr", "TR"}, {"uk", "UA"}, {"ur", "PK"}, {"uz", "UZ"}, {"vi", "VN"}, {"zh", "CN"},
};

bool contains(const std::vector<plat::String>& list, const char* name) {
  return std::find(list.begin(), list.end(), name) != list.end();
}

void appendOnce(std::vector<plat::String>& list, const char* name) {
  if (!contains(list, name))
    list.emplace_back(name);
}

bool is(const plat::String& text, const char* value) {
  return text.get() && std::strcmp(text.get(), value) == 0;
}

} // namespace

LocaleName splitLocale(const char* name) {
  LocaleName parts;
  if (!name)
    return parts;
  std::size_t languageEnd = std::strcspn(name, "_-.@");
  parts.language = plat::strDup(name, static_cast<int>(languageEnd));
  const char* rest = name + languageEnd;
  if (*rest == '_' || *rest == '-') {
    std::size_t territoryEnd = std::strcspn(rest + 1, ".@");
    if (territoryEnd > 0)
      parts.territory = plat::strDup(rest + 1, static_cast<int>(territoryEnd));
  }
  return parts;
}

const char* defaultTerritory(const char* language) noexcept {
  if (!language)
    return nullptr;
  const auto* row = std::lower_bound(std::begin(territories), std::end(territories), language,
                                     [](const TerritoryRow& r, const char* wanted) {
                                       return std::strcmp(r.language, wanted) < 0;
                                     });
  return row != std::end(territories) && std::strcmp(row->language, language) == 0 ? row->territory
                                                                                   : nullptr;
}

void parseLocaleList(const char* text, std::vector<plat::String>& result,
                     const char* defaultLanguage, const char* defaultTerritoryOf) {
  if (!text)
    return;
  for (const char* piece = text;; ++piece) {
    std::size_t length = std::strcspn(piece, ":");
    plat::String name = plat::strDup(piece, static_cast<int>(length));
    LocaleName parts = splitLocale(name.get());
    if (*parts.language.get()) {
      const char* territory = parts.territory.get();
      if (!territory)
        territory = defaultLanguage && is(parts.language, defaultLanguage)
                        ? defaultTerritoryOf
                        : defaultTerritory(parts.language.get());
      plat::String full = territory ? plat::strFormat("%s_%s", parts.language.get(), territory)
                                    : std::move(parts.language);
      appendOnce(result, full.get());
    }
    piece += length;
    if (!*piece)
      break;
  }
}

void expandLocales(const std::vector<plat::String>& list, std::vector<plat::String>& result) {
  for (const plat::String& locale : list) {
    appendOnce(result, locale.get());
    LocaleName parts = splitLocale(locale.get());
    if (parts.territory.get())
      appendOnce(result, parts.language.get());
  }
  appendOnce(result, "en_US");
  appendOnce(result, "en");
}

const char* pluralForm(const char* locale, int count) {
  LocaleName parts = splitLocale(locale);
  bool zeroIsSingular =
      is(parts.language, "fr") ||
      (is(parts.language, "pt") && (parts.territory.isNull() || is(parts.territory, "BR")));
  if (zeroIsSingular)
    return count == 0 || count == 1 ? "sing" : "many";
  for (const char* language : {"ja", "vi", "ko", "zh"}) {
    if (is(parts.language, language))
      return "many";
  }
  return count == 1 ? "sing" : "many";
}

} // namespace loc
