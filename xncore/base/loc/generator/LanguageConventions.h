// The conventions of each language of the catalogs that the build can check:
// the header a translator's tool needs, the quotation marks, the spacing of
// punctuation and the form of mnemonics. TRANSLATORS.md beside this file
// states them, and the terms to use, for people.
#pragma once

#include <string>
#include <string_view>

namespace locgen {

struct LanguageConventions {
  std::string_view language;       // the file's name: "de" for de.po
  std::string_view locale;         // the header's "Language"
  std::string_view pluralForms;    // the header's "Plural-Forms"
  std::u32string_view quotes;      // the opening and closing quotation marks; empty for English
  std::u32string_view innerQuotes; // the marks of a quotation inside one, or empty
  bool spacedPunctuation =
      false;                  // a no-break space before : ; ? ! and inside the quotes, else none
  bool invertedMarks = false; // questions and exclamations open with ¿ and ¡
  bool fullWidth = false;     // full-width punctuation beside ideographs, mnemonics as "(&X)"
};

/// The conventions of `language`, or null for a language the catalogs do not have.
const LanguageConventions* conventionsOf(std::string_view language);

/// "„…“": the quotation marks of a language around an ellipsis, for messages.
std::string quotationExample(const LanguageConventions& conventions);

} // namespace locgen
