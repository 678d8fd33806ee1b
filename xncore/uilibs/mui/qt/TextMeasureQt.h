// How the Qt binding measures a text in a font: the same rules for an
// element's own text and for a caption beside a control.
#pragma once

class QFont;
class QString;

namespace mui {

/// The width of the longest line of `text`, broken only at newlines. With
/// `mnemonics`, a single '&' takes no room and "&&" shows one '&'.
int textWidthQt(const QFont& font, const QString& text, bool mnemonics);
/// The height of `text` wrapped at `width`: 0 below a width of 1, one line a
/// newline for `singleLine` or an unbounded width.
int textHeightQt(const QFont& font, const QString& text, int width, bool mnemonics,
                 bool singleLine);

} // namespace mui
