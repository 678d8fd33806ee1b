// The typographic conventions of a translation that can be checked without
// reading it: quotation marks, the spacing of punctuation, full-width
// punctuation beside Chinese text and the Chinese form of mnemonics. Markup
// tags ("<a href=\"%S\">", "<param>") and code-like tokens ("12:00",
// "https://", "NAME:PERMISSIONS") are not punctuation and pass.
#pragma once

#include "LanguageConventions.h"

#include <string>
#include <vector>

namespace locgen {

/// The positions of the single '&' marks of a text; "&&" is a literal ampersand.
std::vector<std::size_t> markPositions(const std::u32string& text);

/// What `text`, the translation of `english`, breaks of the conventions of its
/// language, one message each, in the order found; empty when it keeps them all.
std::vector<std::string> typographyProblems(const LanguageConventions& conventions,
                                            const std::string& text, const std::string& english);

} // namespace locgen
