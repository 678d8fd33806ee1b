// plat::Markup::ParserHtml: the parser of the markup language. The text is
// wrapped in a document whose root is "body" and read with the system's XML
// reader, whitespace kept; the tree is then walked into paragraphs of runs.
// The one shared instance is Markup::parser(); it holds no state that a parse
// changes.
#pragma once

#include "plat/Markup.h"

namespace plat {

class Markup::ParserHtml : public Markup::Parser {
public:
  /// Throws Exception "XML error %i:%i %s" for text that is not well-formed,
  /// and the walk's errors for unknown tags, attributes and links without a
  /// target.
  void parseParagraphs(const char* text, std::list<Paragraph>& paragraphs) const override;

private:
  const char* header_ = "<?xml version=\"1.0\"?>\n";
};

} // namespace plat
