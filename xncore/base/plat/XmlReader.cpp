#include "plat/XmlReader.h"

#include "plat/DString.h"
#include "plat/StringUtils.h"
#include "plat/utf8.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace plat {

namespace {

std::atomic<bool> keepWhitespace{false};

constexpr const char* messages[] = {
    "No error",
    "Warning: Unmatched end tag",
    "Warning: No XML tag found",
    "Error: No XML data",
    "Error: Missing start tag name",
    "Error: Missing end tag name",
    "Error: Unmatched end tag",
    "Error: Unmatched clear tag end",
    "Error: Unexpected token found",
    "Error: No elements found",
    "Error: File not found",
    "Error: First Tag not found",
    "Error: Unknown character entity",
};

bool isNameStart(char ch) {
  auto byte = static_cast<unsigned char>(ch);
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_' ||
         byte == ':' || byte >= 0x80;
}

bool isNameChar(char ch) {
  return isNameStart(ch) || (ch >= '0' && ch <= '9') || ch == '-' || ch == '.';
}

// Trims the ends and makes each inner run of whitespace one space.
String condense(const char* text) {
  DString out;
  out.ensure(1);
  bool pendingSpace = false;
  for (const char* cursor = text; *cursor; ++cursor) {
    if (isWhitespace(*cursor)) {
      pendingSpace = out.length() > 0;
      continue;
    }
    if (pendingSpace)
      out.append(" ");
    pendingSpace = false;
    out.append(cursor, 1);
  }
  return out.takeString();
}

} // namespace

const char* xmlErrorMessage(int code) noexcept {
  if (code < 0 || code >= static_cast<int>(std::size(messages)))
    return "Error: Unknown";
  return messages[code];
}

const char* XmlError::message() const noexcept {
  return xmlErrorMessage(code);
}

void setXmlKeepWhitespace(bool keep) noexcept {
  keepWhitespace.store(keep);
}

bool xmlKeepWhitespace() noexcept {
  return keepWhitespace.load();
}

const char* XmlElement::attribute(const char* name) const noexcept {
  for (const Attribute& entry : attributes_) {
    if (std::strcmp(entry.name.get(), name) == 0)
      return entry.value.get();
  }
  return nullptr;
}

String XmlElement::text() const {
  DString joined;
  joined.ensure(1);
  for (const Node& node : nodes_)
    joined.append(node.text.get());
  return joined.takeString();
}

String XmlElement::childText(const char* name) const {
  const XmlElement* element = child(name);
  return element ? element->text() : String();
}

int XmlElement::childCount(const char* name) const noexcept {
  int count = 0;
  for (const Node& node : nodes_) {
    if (node.element && (!name || std::strcmp(node.element->name(), name) == 0))
      ++count;
  }
  return count;
}

const XmlElement* XmlElement::child(const char* name, int index) const noexcept {
  for (const Node& node : nodes_) {
    if (node.element && (!name || std::strcmp(node.element->name(), name) == 0) && index-- == 0)
      return node.element;
  }
  return nullptr;
}

// One pass over the text with an explicit stack of open elements. Each
// operation returns false once error_ is set.
class XmlParser {
public:
  XmlParser(XmlDocument& document, const char* text, std::size_t length)
      : document_(document), cursor_(text), end_(text + length) {}

  bool parse(const char* rootName);

private:
  struct Position {
    const char* at;
    int line;
    int column;
  };

  bool atEnd() const { return cursor_ >= end_; }
  bool lookingAt(const char* token) const {
    std::size_t length = std::strlen(token);
    return static_cast<std::size_t>(end_ - cursor_) >= length &&
           std::memcmp(cursor_, token, length) == 0;
  }
  Position here() const { return {cursor_, line_, column_}; }
  void advance(std::size_t count = 1);
  void skipWhitespace() {
    while (!atEnd() && isWhitespace(*cursor_))
      advance();
  }
  bool fail(int code, const Position& where);
  bool fail(int code) { return fail(code, here()); }

  bool checkEncoding();
  bool skipPast(const char* terminator);
  bool skipMisc();
  String readName();
  bool readEntity(DString& out);
  bool readAttributes(XmlElement& element, bool& selfClosed);
  bool readStartTag(const char* rootName, bool& selfClosed);
  bool readEndTag();
  bool readText();
  void addText(const char* text);

  XmlDocument& document_;
  const char* cursor_;
  const char* end_;
  int line_ = 1;
  int column_ = 1;
  std::vector<XmlElement*> open_;
};

void XmlParser::advance(std::size_t count) {
  for (; count > 0 && !atEnd(); --count, ++cursor_) {
    if (*cursor_ == '\n') {
      ++line_;
      column_ = 1;
    } else if ((static_cast<unsigned char>(*cursor_) & 0xC0) != 0x80) {
      ++column_;
    }
  }
}

bool XmlParser::fail(int code, const Position& where) {
  document_.error_ = {code, where.line, where.column};
  return false;
}

// Every string of the tree is valid UTF-8 without NULs, so the document is
// checked whole before anything is built.
bool XmlParser::checkEncoding() {
  const char* scan = cursor_;
  while (scan < end_) {
    const char* before = scan;
    int available = static_cast<int>(std::min<std::ptrdiff_t>(end_ - scan, 4));
    if (decodeUtf8(scan, available) <= 0) {
      advance(static_cast<std::size_t>(before - cursor_));
      return fail(XmlError::unexpectedToken);
    }
  }
  return true;
}

bool XmlParser::skipPast(const char* terminator) {
  Position start = here();
  while (!atEnd() && !lookingAt(terminator))
    advance();
  if (atEnd())
    return fail(XmlError::unexpectedToken, start);
  advance(std::strlen(terminator));
  return true;
}

// Whitespace, comments and processing instructions, outside the root.
bool XmlParser::skipMisc() {
  for (;;) {
    skipWhitespace();
    if (lookingAt("<!--")) {
      if (!skipPast("-->"))
        return false;
    } else if (lookingAt("<?")) {
      if (!skipPast("?>"))
        return false;
    } else {
      return true;
    }
  }
}

String XmlParser::readName() {
  const char* start = cursor_;
  if (atEnd() || !isNameStart(*cursor_))
    return String();
  while (!atEnd() && isNameChar(*cursor_))
    advance();
  return strDup(start, static_cast<int>(cursor_ - start));
}

bool XmlParser::readEntity(DString& out) {
  static const struct {
    const char* name;
    const char* text;
  } predefined[] = {{"amp;", "&"}, {"lt;", "<"}, {"gt;", ">"}, {"quot;", "\""}, {"apos;", "'"}};
  Position start = here();
  advance();
  for (const auto& entity : predefined) {
    if (lookingAt(entity.name)) {
      out.append(entity.text);
      advance(std::strlen(entity.name));
      return true;
    }
  }
  if (!lookingAt("#"))
    return fail(XmlError::unknownEntity, start);
  advance();
  int base = 10;
  if (lookingAt("x")) {
    base = 16;
    advance();
  }
  long long codePoint = 0;
  int digits = 0;
  for (; !atEnd() && *cursor_ != ';'; advance(), ++digits) {
    char ch = *cursor_;
    int digit = ch >= '0' && ch <= '9'                 ? ch - '0'
                : base == 16 && ch >= 'a' && ch <= 'f' ? ch - 'a' + 10
                : base == 16 && ch >= 'A' && ch <= 'F' ? ch - 'A' + 10
                                                       : -1;
    if (digit < 0 || codePoint > maxCodePoint)
      return fail(XmlError::unknownEntity, start);
    codePoint = codePoint * base + digit;
  }
  if (atEnd() || digits == 0 || codePoint == 0 || codePoint > maxCodePoint)
    return fail(XmlError::unknownEntity, start);
  // Surrogates and non-characters are refused as the UTF-8 decoder refuses them.
  char encoded[4];
  char* encodedEnd = encoded;
  encodeUtf8(static_cast<int>(codePoint), encodedEnd);
  if (!isValidUtf8(encoded, encodedEnd))
    return fail(XmlError::unknownEntity, start);
  advance();
  out.append(encoded, static_cast<int>(encodedEnd - encoded));
  return true;
}

bool XmlParser::readAttributes(XmlElement& element, bool& selfClosed) {
  for (;;) {
    bool spaced = !atEnd() && isWhitespace(*cursor_);
    skipWhitespace();
    if (atEnd())
      return fail(XmlError::unexpectedToken);
    if (*cursor_ == '>') {
      advance();
      selfClosed = false;
      return true;
    }
    if (*cursor_ == '/') {
      Position slash = here();
      advance();
      if (!lookingAt(">"))
        return fail(XmlError::unmatchedClearTagEnd, slash);
      advance();
      selfClosed = true;
      return true;
    }
    Position start = here();
    String name = readName();
    if (!spaced || name.isNull() || element.attribute(name.get()))
      return fail(XmlError::unexpectedToken, start);
    skipWhitespace();
    if (!lookingAt("="))
      return fail(XmlError::unexpectedToken);
    advance();
    skipWhitespace();
    if (atEnd() || (*cursor_ != '"' && *cursor_ != '\''))
      return fail(XmlError::unexpectedToken);
    char quote = *cursor_;
    advance();
    DString value;
    value.ensure(1);
    while (!atEnd() && *cursor_ != quote) {
      if (*cursor_ == '<')
        return fail(XmlError::unexpectedToken);
      if (*cursor_ == '&') {
        if (!readEntity(value))
          return false;
        continue;
      }
      value.append(cursor_, 1);
      advance();
    }
    if (atEnd())
      return fail(XmlError::unexpectedToken);
    advance();
    element.attributes_.push_back({std::move(name), value.takeString()});
  }
}

bool XmlParser::readStartTag(const char* rootName, bool& selfClosed) {
  Position start = here();
  advance();
  String name = readName();
  if (name.isNull())
    return fail(XmlError::missingStartTagName, start);
  if (open_.empty() && rootName && std::strcmp(name.get(), rootName) != 0)
    return fail(XmlError::firstTagNotFound, start);
  document_.elements_.push_back(std::make_unique<XmlElement>(std::move(name)));
  XmlElement* element = document_.elements_.back().get();
  if (!readAttributes(*element, selfClosed))
    return false;
  if (open_.empty())
    document_.root_ = element;
  else
    open_.back()->nodes_.push_back({element, String()});
  if (!selfClosed)
    open_.push_back(element);
  return true;
}

bool XmlParser::readEndTag() {
  Position start = here();
  advance(2);
  String name = readName();
  if (name.isNull())
    return fail(XmlError::missingEndTagName, start);
  skipWhitespace();
  if (!lookingAt(">"))
    return fail(XmlError::unexpectedToken);
  advance();
  if (std::strcmp(name.get(), open_.back()->name()) != 0)
    return fail(XmlError::unmatchedEndTag, start);
  open_.pop_back();
  return true;
}

void XmlParser::addText(const char* text) {
  using Whitespace = XmlDocument::Whitespace;
  bool keep = document_.whitespace_ == Whitespace::processWide
                  ? xmlKeepWhitespace()
                  : document_.whitespace_ == Whitespace::keep;
  if (!keep) {
    String condensed = condense(text);
    if (*condensed.get())
      open_.back()->nodes_.push_back({nullptr, std::move(condensed)});
  } else if (*text) {
    open_.back()->nodes_.push_back({nullptr, String(text)});
  }
}

bool XmlParser::readText() {
  DString text;
  text.ensure(1);
  while (!atEnd() && *cursor_ != '<') {
    if (*cursor_ == '&') {
      if (!readEntity(text))
        return false;
      continue;
    }
    const char* run = cursor_;
    while (!atEnd() && *cursor_ != '<' && *cursor_ != '&')
      advance();
    text.append(run, static_cast<int>(cursor_ - run));
  }
  addText(text.get());
  return true;
}

bool XmlParser::parse(const char* rootName) {
  if (lookingAt("\xEF\xBB\xBF"))
    advance(3);
  if (!checkEncoding())
    return false;
  skipWhitespace();
  if (atEnd())
    return fail(XmlError::noData);
  if (!std::memchr(cursor_, '<', static_cast<std::size_t>(end_ - cursor_)))
    return fail(XmlError::warningNoTag);
  if (!skipMisc())
    return false;
  if (atEnd())
    return fail(XmlError::noElements);
  if (*cursor_ != '<' || lookingAt("<!"))
    return fail(XmlError::unexpectedToken);
  if (lookingAt("</"))
    return fail(XmlError::warningUnmatchedEndTag);
  bool selfClosed = false;
  if (!readStartTag(rootName, selfClosed))
    return false;
  while (!open_.empty()) {
    if (atEnd())
      return fail(XmlError::unexpectedToken);
    bool ok = lookingAt("</")     ? readEndTag()
              : lookingAt("<!--") ? skipPast("-->")
              : lookingAt("<?")   ? skipPast("?>")
              : lookingAt("<!")   ? fail(XmlError::unexpectedToken)
              : lookingAt("<")    ? readStartTag(rootName, selfClosed)
                                  : readText();
    if (!ok)
      return false;
  }
  if (!skipMisc())
    return false;
  if (atEnd())
    return true;
  return fail(lookingAt("</") ? XmlError::warningUnmatchedEndTag : XmlError::unexpectedToken);
}

bool XmlDocument::parse(const char* text, std::size_t length, const char* rootName) {
  elements_.clear();
  root_ = nullptr;
  error_ = XmlError();
  XmlParser parser(*this, text ? text : "", text ? length : 0);
  if (parser.parse(rootName))
    return true;
  elements_.clear();
  root_ = nullptr;
  return false;
}

bool XmlDocument::parse(const char* text, const char* rootName) {
  return parse(text, strLen(text), rootName);
}

} // namespace plat
