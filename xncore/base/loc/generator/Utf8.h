// UTF-8 as the catalog generator needs it: a validity check, the code points of
// a text, and the classes of characters that the typographic checks look at.
#pragma once

#include <string>
#include <vector>

namespace locgen {

bool isValidUtf8(const std::string& text);

/// The code points of a text that isValidUtf8 accepted.
std::u32string codePoints(const std::string& text);

std::string toUtf8(char32_t codePoint);

/// A Chinese ideograph (the unified ideographs, extension A and compatibility).
bool isIdeograph(char32_t c);

/// A letter or digit of the scripts the catalogs use, ideographs included.
bool isLetterOrDigit(char32_t c);

/// Space, tab, line feed, carriage return and the no-break spaces.
bool isSpace(char32_t c);

} // namespace locgen
