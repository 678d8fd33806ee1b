#include "Utf8.h"

namespace locgen {

namespace {

// The length of the sequence that `lead` starts, or 0 for a byte that cannot lead.
int sequenceLength(unsigned char lead) {
  return lead < 0x80 ? 1 : (lead >> 5) == 6 ? 2 : (lead >> 4) == 14 ? 3 : (lead >> 3) == 30 ? 4 : 0;
}

} // namespace

bool isValidUtf8(const std::string& text) {
  for (std::size_t i = 0; i < text.size();) {
    auto lead = static_cast<unsigned char>(text[i]);
    int length = sequenceLength(lead);
    if (length == 0 || i + length > text.size())
      return false;
    char32_t codePoint = length == 1 ? lead : lead & (0x7F >> length);
    for (int k = 1; k < length; ++k) {
      auto next = static_cast<unsigned char>(text[i + k]);
      if ((next & 0xC0) != 0x80)
        return false;
      codePoint = codePoint << 6 | (next & 0x3F);
    }
    static constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    if (codePoint < least[length] || codePoint > 0x10FFFF ||
        (codePoint >= 0xD800 && codePoint <= 0xDFFF))
      return false;
    i += length;
  }
  return true;
}

std::u32string codePoints(const std::string& text) {
  std::u32string out;
  for (std::size_t i = 0; i < text.size();) {
    auto lead = static_cast<unsigned char>(text[i]);
    int length = sequenceLength(lead);
    char32_t codePoint = length == 1 ? lead : lead & (0x7F >> length);
    for (int k = 1; k < length; ++k)
      codePoint = codePoint << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3F);
    out += codePoint;
    i += length;
  }
  return out;
}

std::string toUtf8(char32_t c) {
  std::string out;
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | c >> 6);
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | c >> 12);
    out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | c >> 18);
    out += static_cast<char>(0x80 | (c >> 12 & 0x3F));
    out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
  return out;
}

bool isIdeograph(char32_t c) {
  return (c >= 0x3400 && c <= 0x4DBF) || (c >= 0x4E00 && c <= 0x9FFF) ||
         (c >= 0xF900 && c <= 0xFAFF);
}

bool isLetterOrDigit(char32_t c) {
  if (c < 0x80)
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
  // Latin letters with accents and the Latin extensions, without × and ÷.
  if (c >= 0xC0 && c <= 0x24F)
    return c != 0xD7 && c != 0xF7;
  return isIdeograph(c);
}

bool isSpace(char32_t c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == 0xA0 || c == 0x202F;
}

} // namespace locgen
