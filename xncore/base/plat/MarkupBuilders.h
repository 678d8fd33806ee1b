// Writers of the markup language, so that callers never spell tags. Each
// appends to `out` and returns it. Text arguments are plain text, escaped on
// the way in (invalid UTF-8 repaired, "&<>\"'" as entities); `markup`
// arguments are markup that is already valid. Attribute values are escaped
// too, so that a link target with "&" in it stays well-formed. The closing
// "</div>" of markupDiv is the caller's.
#pragma once

#include "plat/DString.h"
#include "plat/Markup.h"

namespace plat {

/// The CSS of `style`: "font-size:<percent>%;font-weight:<weight>;", then the
/// italic, underline, colour and background colour properties that are set.
/// The percentage is rounded to nearest, halves away from zero.
String styleToCss(const Markup::Style& style);

DString& markupAppend(DString& out, const char* text);
/// The text in bold, then wrapped as by markupSpan.
DString& markupBold(DString& out, const char* text, const char* colour, int size);
/// `markup` as it stands when `colour` is null and `size` is 120; otherwise in
/// a span of weight 400, that size and that colour.
DString& markupSpan(DString& out, const char* markup, const char* colour, int size);
/// `markup` as it stands for the default style, otherwise in a span of `style`.
DString& markupSpan(DString& out, const char* markup, const Markup::Style& style);
DString& markupTextSpan(DString& out, const char* text, const char* colour, int size);
DString& markupTextSpan(DString& out, const char* text, const Markup::Style& style);
/// A link to `href` showing `text`, or `href` itself when `text` is null.
DString& markupLink(DString& out, const char* text, const char* href, const char* colour);
DString& markupLink(DString& out, const char* text, const char* href, const Markup::Style& style);
/// Opens a block with `alignment` (Markup::Alignment) and, when given, `style`.
DString& markupDiv(DString& out, int alignment, const Markup::Style* style);

} // namespace plat
