// plat::Markup::Stripper: the plain text of a marked-up text. It is the string
// itself: the words without tags, with the line feeds of "br" and "li", and no
// separator between paragraphs. Invalid markup gives the empty string.
#pragma once

#include "plat/DString.h"
#include "plat/Markup.h"

namespace plat {

class Markup::Stripper : public DString, public Markup::Handler {
public:
  /// Parses `text` at once.
  explicit Stripper(const char* text);

  void text(const Style& style, const char* text) override;
  void link(const Style& style, const char* href, const char* text) override;

private:
  void add(const char* text);

  // The length so far, so that appending does not scan the string each time.
  int length_ = 0;
};

} // namespace plat
