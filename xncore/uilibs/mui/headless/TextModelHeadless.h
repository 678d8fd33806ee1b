// mui::TextModelHeadless: how the headless binding measures text, exactly and
// without fonts, so that tests can state the sizes they expect. Every code
// point of a style is `advance` pixels wide and every line `lineHeight` high;
// both follow the style's font size, and bold text is one pixel wider a code
// point.
#pragma once

#include "mui/MuStyle.h"

#include <string>
#include <vector>

namespace mui {

class TextModelHeadless {
public:
  TextModelHeadless(const MuStyle& style, bool mnemonics);

  /// (7 * fontSize + 60) / 120, plus 1 for bold.
  int advance() const noexcept { return advance_; }
  /// (16 * fontSize + 60) / 120.
  int lineHeight() const noexcept { return lineHeight_; }

  /// The width of the longest line, breaking only at newlines.
  int width(const char* text) const;
  /// The height of `text` wrapped to `width`: 0 below 1, one line per newline
  /// for single-line text or an unbounded width, else greedy word wrapping.
  int height(const char* text, int width, bool singleLine) const;
  /// The lines of `text` wrapped greedily to `width`, as code points.
  std::vector<std::u32string> wrap(const char* text, int width) const;

  /// The text as shown: for button-like elements "&&" is one '&' and a
  /// single '&' marks the mnemonic and takes no room.
  std::u32string shown(const char* text) const;

private:
  int advance_;
  int lineHeight_;
  bool mnemonics_;
};

} // namespace mui
