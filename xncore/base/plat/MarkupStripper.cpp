#include "plat/MarkupStripper.h"

#include "plat/StringUtils.h"

#include <cstring>

namespace plat {

Markup::Stripper::Stripper(const char* text) {
  ensure(static_cast<int>(strLen(text)) + 1);
  parser().parse(text, this);
}

void Markup::Stripper::text(const Style&, const char* text) {
  add(text);
}

void Markup::Stripper::link(const Style&, const char* href, const char* text) {
  add(text ? text : href);
}

void Markup::Stripper::add(const char* text) {
  int added = static_cast<int>(strLen(text));
  ensure(length_ + added + 1);
  std::memcpy(data() + length_, text, static_cast<std::size_t>(added));
  length_ += added;
  data()[length_] = '\0';
}

} // namespace plat
