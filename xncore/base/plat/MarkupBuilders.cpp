#include "plat/MarkupBuilders.h"

#include "plat/MarkupEscape.h"

#include <cstdint>
#include <cstdlib>

namespace plat {

namespace {

// size * 100 / 120, to nearest, halves away from zero.
long long sizePercent(std::int32_t size) {
  long long scaled = static_cast<long long>(size) * 100;
  long long quotient = scaled / Markup::Style::normalSize;
  long long remainder = scaled % Markup::Style::normalSize;
  if (2 * std::llabs(remainder) >= Markup::Style::normalSize)
    quotient += scaled < 0 ? -1 : 1;
  return quotient;
}

Markup::Style sizedStyle(const char* colour, int size) {
  Markup::Style style;
  style.size_ = size;
  style.colour_ = String(colour);
  return style;
}

void appendEscaped(DString& out, const char* text) {
  out.append(escapeMarkup(text).get());
}

void appendAttribute(DString& out, const char* name, const char* value) {
  out.appendFormat(" %s=\"", name);
  appendEscaped(out, value);
  out.append("\"");
}

DString& appendLink(DString& out, const char* text, const char* href, const char* css) {
  out.append("<a");
  appendAttribute(out, "href", href);
  if (css)
    appendAttribute(out, "style", css);
  out.append(">");
  appendEscaped(out, text ? text : href);
  out.append("</a>");
  return out;
}

} // namespace

String styleToCss(const Markup::Style& style) {
  DString css;
  css.appendFormat("font-size:%lld%%;font-weight:%d;", sizePercent(style.size_), style.weight_);
  if (style.flags_ & Markup::Style::italic)
    css.append("font-style:italic;");
  if (style.flags_ & Markup::Style::underline)
    css.append("text-decoration:underline;");
  if (!style.colour_.isNull())
    css.appendFormat("color:%s;", style.colour_.get());
  if (!style.backgroundColour_.isNull())
    css.appendFormat("background-color:%s;", style.backgroundColour_.get());
  return css.takeString();
}

DString& markupAppend(DString& out, const char* text) {
  appendEscaped(out, text);
  return out;
}

DString& markupBold(DString& out, const char* text, const char* colour, int size) {
  DString bold("<b>");
  appendEscaped(bold, text);
  bold.append("</b>");
  return markupSpan(out, bold.get(), colour, size);
}

DString& markupSpan(DString& out, const char* markup, const char* colour, int size) {
  return markupSpan(out, markup, sizedStyle(colour, size));
}

DString& markupSpan(DString& out, const char* markup, const Markup::Style& style) {
  if (style.isDefault()) {
    out.append(markup);
    return out;
  }
  out.append("<span");
  appendAttribute(out, "style", styleToCss(style).get());
  out.append(">");
  out.append(markup);
  out.append("</span>");
  return out;
}

DString& markupTextSpan(DString& out, const char* text, const char* colour, int size) {
  return markupSpan(out, escapeMarkup(text).get(), colour, size);
}

DString& markupTextSpan(DString& out, const char* text, const Markup::Style& style) {
  return markupSpan(out, escapeMarkup(text).get(), style);
}

DString& markupLink(DString& out, const char* text, const char* href, const char* colour) {
  if (!colour)
    return appendLink(out, text, href, nullptr);
  return appendLink(out, text, href, strFormat("color:%s", colour).get());
}

DString& markupLink(DString& out, const char* text, const char* href, const Markup::Style& style) {
  return appendLink(out, text, href, styleToCss(style).get());
}

DString& markupDiv(DString& out, int alignment, const Markup::Style* style) {
  static const char* const names[] = {"left", "center", "right", "justify"};
  const char* name = alignment >= 0 && alignment < 4 ? names[alignment] : names[0];
  DString css;
  css.appendFormat("text-align:%s", name);
  if (style)
    css.appendFormat(";%s", styleToCss(*style).get());
  out.append("<div");
  appendAttribute(out, "style", css.get());
  out.append(">");
  return out;
}

} // namespace plat
