#include "mui/Ellipsis.h"

#include <vector>

namespace mui {

namespace {

constexpr std::string_view ellipsis = "\u2026";

bool isSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool isLeadByte(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

// The longest of the ascending prefix lengths `cuts` whose text fits with the
// ellipsis after it; a longer prefix never fits where a shorter one doesn't.
bool longestFitting(std::string_view text, const std::vector<std::size_t>& cuts, int width,
                    const TextMeasure& measure, std::string* result) {
  std::size_t low = 0;
  std::size_t high = cuts.size();
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    std::string candidate(text.substr(0, cuts[middle]));
    candidate += ellipsis;
    if (measure(candidate) <= width) {
      *result = std::move(candidate);
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low > 0;
}

} // namespace

std::string elideAtWordEnd(std::string_view text, int width, const TextMeasure& measure) {
  if (measure(text) <= width)
    return std::string(text);
  std::vector<std::size_t> wordEnds;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (isSpace(text[i]) && !isSpace(text[i - 1]))
      wordEnds.push_back(i);
  }
  std::string result;
  if (longestFitting(text, wordEnds, width, measure, &result))
    return result;
  std::vector<std::size_t> characterEnds;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (isLeadByte(text[i]))
      characterEnds.push_back(i);
  }
  if (longestFitting(text, characterEnds, width, measure, &result))
    return result;
  return std::string(ellipsis);
}

} // namespace mui
