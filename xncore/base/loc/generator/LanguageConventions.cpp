#include "LanguageConventions.h"

#include "Utf8.h"

namespace locgen {

namespace {

// The plural forms agree with the translations' own choice of "sing" and
// "many": French and Brazilian Portuguese count 0 as singular, Chinese has one form.
constexpr LanguageConventions table[] = {
    {"de", "de_DE", "nplurals=2; plural=(n != 1);", U"\u201E\u201C", U"", false, false, false},
    {"en", "en", "nplurals=2; plural=(n != 1);", U"", U"", false, false, false},
    {"es", "es_ES", "nplurals=2; plural=(n != 1);", U"\u00AB\u00BB", U"\u201C\u201D", false, true,
     false},
    {"fr", "fr_FR", "nplurals=2; plural=(n > 1);", U"\u00AB\u00BB", U"\u201C\u201D", true, false,
     false},
    {"pt", "pt_BR", "nplurals=2; plural=(n > 1);", U"\u201C\u201D", U"", false, false, false},
    {"zh", "zh_CN", "nplurals=1; plural=0;", U"\u201C\u201D", U"", false, false, true},
};

} // namespace

const LanguageConventions* conventionsOf(std::string_view language) {
  for (const LanguageConventions& conventions : table) {
    if (conventions.language == language)
      return &conventions;
  }
  return nullptr;
}

std::string quotationExample(const LanguageConventions& conventions) {
  if (conventions.quotes.size() != 2)
    return "\"...\"";
  std::string space = conventions.spacedPunctuation ? toUtf8(0xA0) : "";
  return toUtf8(conventions.quotes[0]) + space + toUtf8(0x2026) + space +
         toUtf8(conventions.quotes[1]);
}

} // namespace locgen
