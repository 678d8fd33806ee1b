#include "plat/MarkupParserHtml.h"

#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/NameCompare.h"
#include "plat/NumParse.h"
#include "plat/StringUtils.h"
#include "plat/XmlReader.h"

#include <charconv>
#include <cmath>
#include <deque>
#include <limits>
#include <string>

namespace plat {

namespace {

using Style = Markup::Style;
using Paragraph = Markup::Paragraph;

enum class Tag { body, div, span, font, ul, br, li, b, i, u, a };

Tag tagOf(const char* name) {
  static const struct {
    const char* name;
    Tag tag;
  } tags[] = {{"div", Tag::div}, {"span", Tag::span}, {"font", Tag::font}, {"ul", Tag::ul},
              {"br", Tag::br},   {"li", Tag::li},     {"b", Tag::b},       {"i", Tag::i},
              {"u", Tag::u},     {"a", Tag::a}};
  for (const auto& entry : tags) {
    if (equalsNoCase(name, entry.name))
      return entry.tag;
  }
  throw ExceptionFmt("Unexpected tag %s", name);
}

// Elements on which an attribute that the walk does not know is no error.
bool acceptsAnyAttribute(Tag tag) {
  return tag == Tag::body || tag == Tag::div || tag == Tag::span || tag == Tag::ul ||
         tag == Tag::li || tag == Tag::a;
}

const char* attributeNoCase(const XmlElement& element, const char* name) {
  for (const XmlElement::Attribute& attribute : element.attributes()) {
    if (equalsNoCase(attribute.name.get(), name))
      return attribute.value.get();
  }
  return nullptr;
}

std::string trimmed(const std::string& text) {
  std::size_t first = 0;
  std::size_t last = text.size();
  while (first < last && isWhitespace(text[first]))
    ++first;
  while (last > first && isWhitespace(text[last - 1]))
    --last;
  return text.substr(first, last - first);
}

bool contains(const std::string& name, const char* keyword) {
  return findNoCase(name.c_str(), keyword) != nullptr;
}

// The leading decimal number of `text` as the C library's atof reads it, but
// in every locale alike; 0 when there is none.
double leadingNumber(const std::string& text, const char** rest = nullptr) {
  const char* begin = text.c_str();
  if (*begin == '+')
    ++begin;
  double number = 0;
  auto [end, error] = std::from_chars(begin, text.c_str() + text.size(), number);
  if (error != std::errc())
    end = text.c_str();
  if (rest)
    *rest = end;
  return error == std::errc() ? number : 0;
}

std::int32_t roundedSize(double percent) {
  double size = std::round(percent * Style::normalSize / 100);
  if (!(size >= std::numeric_limits<std::int32_t>::min() &&
        size <= std::numeric_limits<std::int32_t>::max()))
    return Style::normalSize;
  return static_cast<std::int32_t>(size);
}

void applyFontSize(Style& style, const std::string& value) {
  const char* rest = nullptr;
  double number = leadingNumber(value, &rest);
  if (rest != value.c_str() && std::string_view(rest) == "%") {
    style.size_ = roundedSize(number);
    return;
  }
  const char* cursor = value.c_str();
  std::int32_t size = 0;
  if (tryParseInt(size, cursor) && *cursor == '\0')
    style.size_ = size;
}

// The style property rule: names are tested by containment, in this order, so
// that "background-color" sets the text colour.
void applyProperty(Style& style, const std::string& name, const std::string& value) {
  if (contains(name, "font-style")) {
    if (equalsNoCase(value.c_str(), "normal"))
      style.flags_ = 0;
    else if (equalsNoCase(value.c_str(), "italic"))
      style.flags_ |= Style::italic;
  } else if (contains(name, "font-size")) {
    applyFontSize(style, value);
  } else if (contains(name, "font-weight")) {
    const char* cursor = value.c_str();
    tryParseInt(style.weight_, cursor);
  } else if (contains(name, "text-decoration")) {
    if (equalsNoCase(value.c_str(), "underline"))
      style.flags_ |= Style::underline;
  } else if (contains(name, "color")) {
    style.colour_ = String(value.c_str());
  }
}

void applyAlignment(Paragraph& paragraph, const std::string& value) {
  if (equalsNoCase(value.c_str(), "right"))
    paragraph.alignment_ = Markup::alignRight;
  else if (equalsNoCase(value.c_str(), "center"))
    paragraph.alignment_ = Markup::alignCenter;
  else if (equalsNoCase(value.c_str(), "justify"))
    paragraph.alignment_ = Markup::alignJustify;
}

// A "style" attribute: properties separated by ';', each name and value by its
// first ':'. With a paragraph (on "div"), alignment and padding go to it.
void applyCss(const char* css, Style& style, Paragraph* paragraph) {
  std::string text(css);
  for (std::size_t start = 0; start <= text.size();) {
    std::size_t stop = text.find(';', start);
    if (stop == std::string::npos)
      stop = text.size();
    std::string part = text.substr(start, stop - start);
    start = stop + 1;
    std::size_t colon = part.find(':');
    std::string name = part.substr(0, colon);
    std::string value =
        colon == std::string::npos ? std::string() : trimmed(part.substr(colon + 1));
    if (paragraph && contains(name, "text-align"))
      applyAlignment(*paragraph, value);
    else if (paragraph && contains(name, "padding-left"))
      paragraph->paddingLeft_ = static_cast<float>(leadingNumber(value));
    else if (paragraph && contains(name, "padding-right"))
      paragraph->paddingRight_ = static_cast<float>(leadingNumber(value));
    else
      applyProperty(style, name, value);
  }
}

void appendText(String& text, const char* tail) {
  DString joined(text.orEmpty());
  joined.append(tail);
  text = joined.takeString();
}

// The walk over the element tree, with an explicit stack so that no depth of
// nesting can exhaust the native one. Each frame is one element being walked:
// `style` is the style it was given (a variable of the frame below, or the
// root's), `local` its copy for the element's own content.
class Walker {
public:
  explicit Walker(std::list<Paragraph>& paragraphs) : paragraphs_(paragraphs) {}

  void walk(const XmlElement& root);

private:
  struct Frame {
    const XmlElement& element;
    Tag tag;
    Style* style;
    Style local;
    std::size_t next = 0;
  };

  void enter(const XmlElement& element, Tag tag, Style* style);
  void child(Frame& frame, const XmlElement& element);
  void leave();
  void addText(const Frame& frame, const char* text);
  void addParagraph();
  void addLineBreak();
  void addBullet();

  std::list<Paragraph>& paragraphs_;
  Paragraph paragraph_;
  Style rootStyle_;
  std::deque<Frame> frames_;
};

void Walker::walk(const XmlElement& root) {
  enter(root, Tag::body, &rootStyle_);
  while (!frames_.empty()) {
    Frame& frame = frames_.back();
    const auto& nodes = frame.element.nodes();
    if (frame.next == nodes.size()) {
      leave();
      continue;
    }
    const XmlElement::Node& node = nodes[frame.next++];
    if (node.element)
      child(frame, *node.element);
    else
      addText(frame, node.text.get());
  }
  if (!paragraph_.runs_.empty())
    paragraphs_.push_back(std::move(paragraph_));
}

// Attributes count as the first children of their element.
void Walker::enter(const XmlElement& element, Tag tag, Style* style) {
  Frame& frame = frames_.emplace_back(Frame{element, tag, style, *style});
  for (const XmlElement::Attribute& attribute : element.attributes()) {
    const char* name = attribute.name.get();
    const char* value = attribute.value.get();
    if (equalsNoCase(name, "style")) {
      applyCss(value, frame.local, nullptr);
    } else if (equalsNoCase(name, "color")) {
      frame.local.colour_ = String(value);
      frame.style->colour_ = String(value);
    } else if (equalsNoCase(name, "size")) {
      const char* cursor = value;
      tryParseInt(frame.local.size_, cursor);
      frame.style->size_ = frame.local.size_;
    } else if (!acceptsAnyAttribute(tag)) {
      throw ExceptionFmt("Unexpected attribute (%s = %s)", name, value);
    }
  }
}

void Walker::child(Frame& frame, const XmlElement& element) {
  Tag tag = tagOf(element.name());
  switch (tag) {
  case Tag::div:
    if (!paragraph_.runs_.empty()) {
      addParagraph();
      *frame.style = Style();
    }
    if (const char* css = attributeNoCase(element, "style"))
      applyCss(css, *frame.style, &paragraph_);
    enter(element, tag, frame.style);
    return;
  case Tag::span:
    if (const char* css = attributeNoCase(element, "style"))
      applyCss(css, *frame.style, nullptr);
    enter(element, tag, frame.style);
    return;
  case Tag::br:
    addLineBreak();
    break;
  case Tag::li:
    addBullet();
    break;
  case Tag::b:
    frame.local.weight_ = Style::boldWeight;
    break;
  case Tag::i:
    frame.local.flags_ |= Style::italic;
    break;
  case Tag::u:
    frame.local.flags_ |= Style::underline;
    break;
  case Tag::a:
    if (!attributeNoCase(element, "href"))
      throw Exception("Invalid hyperlink spec!");
    break;
  default:
    break;
  }
  enter(element, tag, &frame.local);
}

// A "div" or "span" leaves the default style behind it, not the style that
// was in force before it: a "span" inside a "b" ends the bold.
void Walker::leave() {
  Tag tag = frames_.back().tag;
  frames_.pop_back();
  if (frames_.empty())
    return;
  Frame& parent = frames_.back();
  if (tag == Tag::div)
    addParagraph();
  if (tag == Tag::div || tag == Tag::span)
    *parent.style = Style();
  parent.local = *parent.style;
}

void Walker::addText(const Frame& frame, const char* text) {
  Markup::Run& run =
      paragraph_.runs_.emplace_back(Markup::Run{String(text), String(), frame.local});
  if (frame.tag == Tag::a) {
    run.href_ = String(attributeNoCase(frame.element, "href"));
    run.style_.flags_ |= Style::hyperlink;
  }
}

void Walker::addParagraph() {
  paragraphs_.push_back(std::move(paragraph_));
  paragraph_ = Paragraph();
}

void Walker::addLineBreak() {
  if (paragraph_.runs_.empty())
    paragraph_.runs_.push_back({String("\n"), String(), Style()});
  else
    appendText(paragraph_.runs_.back().text_, "\n");
}

void Walker::addBullet() {
  if (paragraph_.runs_.empty())
    return;
  String& text = paragraph_.runs_.back().text_;
  if (*text.get() && !endsWith(text.get(), "\n"))
    appendText(text, "\n");
  appendText(text, "\xE2\x80\xA2 ");
}

} // namespace

void Markup::ParserHtml::parseParagraphs(const char* text, std::list<Paragraph>& paragraphs) const {
  String document =
      strFormat("%s\n<body class=\"mui-markup\">%s</body>", header_, text ? text : "");
  XmlDocument xml;
  xml.setKeepWhitespace(true);
  if (!xml.parse(document.get(), "body")) {
    const XmlError& error = xml.error();
    throw Exception(formatted, "XML error %i:%i %s", error.line, error.column, error.message());
  }
  Walker(paragraphs).walk(*xml.root());
}

} // namespace plat
