// How a text that must stay on one line is cut to a width: the words that fit,
// then an ellipsis. Bindings measure; the cutting is the same everywhere.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mui {

/// The width of a UTF-8 text in the font at hand.
using TextMeasure = std::function<int(std::string_view text)>;

/// `text` as it shows on one line of `width` pixels: whole when it fits,
/// otherwise the longest run of whole words that fits with "…" after it. When
/// not even the first word fits, it is cut between characters; when not even
/// one character fits, the ellipsis stands alone.
std::string elideAtWordEnd(std::string_view text, int width, const TextMeasure& measure);

} // namespace mui
