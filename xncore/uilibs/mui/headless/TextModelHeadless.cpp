#include "mui/headless/TextModelHeadless.h"

#include "plat/utf8.h"

#include <algorithm>
#include <climits>

namespace mui {

namespace {

std::vector<std::u32string> splitAt(const std::u32string& text, char32_t separator) {
  std::vector<std::u32string> parts(1);
  for (char32_t c : text) {
    if (c == separator)
      parts.emplace_back();
    else
      parts.back() += c;
  }
  return parts;
}

} // namespace

TextModelHeadless::TextModelHeadless(const MuStyle& style, bool mnemonics)
    : advance_((7 * style.fontSize + 60) / 120 + (style.isBold() ? 1 : 0)),
      lineHeight_((16 * style.fontSize + 60) / 120), mnemonics_(mnemonics) {}

std::u32string TextModelHeadless::shown(const char* text) const {
  std::u32string result;
  const char* cursor = text ? text : "";
  while (*cursor) {
    int c = plat::decodeUtf8(cursor);
    if (c < 0)
      c = plat::replacementChar; // the decoder has stepped over the bad sequence
    if (mnemonics_ && c == '&') {
      if (*cursor != '&')
        continue;
      ++cursor;
    }
    result += static_cast<char32_t>(c);
  }
  return result;
}

int TextModelHeadless::width(const char* text) const {
  std::size_t longest = 0;
  for (const std::u32string& line : splitAt(shown(text), U'\n'))
    longest = std::max(longest, line.size());
  return advance_ * static_cast<int>(longest);
}

std::vector<std::u32string> TextModelHeadless::wrap(const char* text, int width) const {
  // At least one code point a line, however narrow.
  const std::size_t fits = static_cast<std::size_t>(std::max(1, width / std::max(1, advance_)));
  std::vector<std::u32string> lines;
  for (const std::u32string& paragraph : splitAt(shown(text), U'\n')) {
    std::u32string line;
    bool lineStarted = false;
    for (std::u32string word : splitAt(paragraph, U' ')) {
      if (lineStarted && line.size() + 1 + word.size() <= fits) {
        line += U' ';
        line += word;
        continue;
      }
      if (lineStarted)
        lines.push_back(std::move(line));
      while (word.size() > fits) {
        lines.push_back(word.substr(0, fits));
        word.erase(0, fits);
      }
      line = std::move(word);
      lineStarted = true;
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

int TextModelHeadless::height(const char* text, int width, bool singleLine) const {
  if (width < 1)
    return 0;
  if (singleLine || width == INT_MAX)
    return lineHeight_ * static_cast<int>(splitAt(shown(text), U'\n').size());
  return lineHeight_ * static_cast<int>(wrap(text, width).size());
}

} // namespace mui
