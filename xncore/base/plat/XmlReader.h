// The system's XML reader: parses a UTF-8 document held in memory into a tree
// of elements, each with its attributes and its content (child elements and
// runs of text) in document order. It knows comments, the <?xml ?>
// declaration, the five predefined entities and numeric character references;
// it has no DTDs, CDATA sections or namespaces. Markup and the XML form of a
// configuration are read through it.
#pragma once

#include "plat/String.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace plat {

/// The result of a parse; code 0 means success. Line and column count from 1,
/// columns in characters.
struct XmlError {
  enum Code {
    none = 0,
    warningUnmatchedEndTag,
    warningNoTag,
    noData,
    missingStartTagName,
    missingEndTagName,
    unmatchedEndTag,
    unmatchedClearTagEnd,
    unexpectedToken,
    noElements,
    fileNotFound,
    firstTagNotFound,
    unknownEntity,
  };

  int code = none;
  int line = 0;
  int column = 0;

  const char* message() const noexcept;
};

/// The text of an error code, such as "Error: Unmatched end tag".
const char* xmlErrorMessage(int code) noexcept;

class XmlElement {
public:
  struct Attribute {
    String name;
    String value;
  };
  /// One piece of content: a child element, or (when `element` is null) text.
  struct Node {
    const XmlElement* element;
    String text;
  };

  explicit XmlElement(String name) : name_(std::move(name)) {}

  const char* name() const noexcept { return name_.get(); }
  const std::vector<Attribute>& attributes() const noexcept { return attributes_; }
  /// The value of attribute `name`, or null when it is absent.
  const char* attribute(const char* name) const noexcept;
  const std::vector<Node>& nodes() const noexcept { return nodes_; }
  /// All text directly inside this element, joined.
  String text() const;
  /// The text of the first child element named `name`, or null without one.
  String childText(const char* name) const;
  /// The number of child elements named `name`; null counts all of them.
  int childCount(const char* name = nullptr) const noexcept;
  /// The `index`th child element named `name` (null: of any name), or null.
  const XmlElement* child(const char* name, int index = 0) const noexcept;

private:
  friend class XmlParser;

  String name_;
  std::vector<Attribute> attributes_;
  std::vector<Node> nodes_;
};

class XmlDocument {
public:
  /// Parses `length` bytes of `text`, whose root element must be named
  /// `rootName` (null accepts any). False with error() set on failure.
  bool parse(const char* text, std::size_t length, const char* rootName);
  /// As above, up to the NUL.
  bool parse(const char* text, const char* rootName);
  /// Whether this document's parses keep whitespace in text, whatever the
  /// process-wide switch says; for readers on any thread.
  void setKeepWhitespace(bool keep) noexcept {
    whitespace_ = keep ? Whitespace::keep : Whitespace::drop;
  }

  /// The root element after a successful parse, otherwise null.
  const XmlElement* root() const noexcept { return root_; }
  const XmlError& error() const noexcept { return error_; }

private:
  friend class XmlParser;

  // Every element of the tree, owned flat, so that no depth of nesting can
  // exhaust the stack when the document is destroyed.
  std::vector<std::unique_ptr<XmlElement>> elements_;
  const XmlElement* root_ = nullptr;
  XmlError error_;
  enum class Whitespace { processWide, keep, drop } whitespace_ = Whitespace::processWide;
};

/// Whether text keeps its whitespace (process-wide, default false). When
/// dropped, text of only whitespace vanishes and other text is trimmed with
/// inner runs of whitespace made one space. Not to be flipped by two threads.
void setXmlKeepWhitespace(bool keep) noexcept;
bool xmlKeepWhitespace() noexcept;

} // namespace plat
