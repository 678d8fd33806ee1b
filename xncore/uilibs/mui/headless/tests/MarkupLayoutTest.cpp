// Laying out marked-up text into lines with the fixed text model of the
// headless binding: at normal size a character is 7 pixels wide (8 in bold)
// and a line 16 pixels high, with 8 between paragraphs.
#include "plat/MarkupLayout.h"

#include "mui/headless/MarkupMetricsHeadless.h"
#include "plat/utf8.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

using plat::Markup;

// The pieces as "line:left-right@top 'text'", links as "line:left-right@top
// href->'text'", paragraph ends as "|left,right|", joined by spaces.
class Placer : public mui::MarkupMetricsHeadless {
public:
  void endParagraph(std::int32_t left, std::int32_t right) override {
    pieces_ += "|" + std::to_string(left) + "," + std::to_string(right) + "| ";
  }
  std::int32_t measure(const char* begin, const char* end) override {
    ++measures_;
    EXPECT_TRUE(plat::isValidUtf8(begin, end)) << std::string(begin, end);
    return MarkupMetricsHeadless::measure(begin, end);
  }
  void drawText(const char* begin, const char* end, const Markup::Layout::Rect& rect,
                std::int32_t line) override {
    place(rect, line, "'" + std::string(begin, end) + "'");
  }
  void drawLink(const char* href, const char* begin, const char* end,
                const Markup::Layout::Rect& rect, std::int32_t line) override {
    place(rect, line, std::string(href) + "->'" + std::string(begin, end) + "'");
  }
  void end() override { pieces_ += "$"; }

  std::string pieces_;
  int measures_ = 0;

private:
  void place(const Markup::Layout::Rect& rect, std::int32_t line, const std::string& what) {
    EXPECT_EQ(rect.bottom - rect.top, lineHeight());
    pieces_ += std::to_string(line) + ":" + std::to_string(rect.left) + "-" +
               std::to_string(rect.right) + "@" + std::to_string(rect.top) + " " + what + " ";
  }
};

struct Case {
  const char* markup;
  std::int32_t width;
  const char* pieces;
  Markup::Layout::Size size;
};

void expectLayouts(std::initializer_list<Case> cases) {
  for (const Case& c : cases) {
    Placer placer;
    Markup::Layout layout(&placer, c.width);
    EXPECT_TRUE(Markup::parser().parse(c.markup, &layout)) << c.markup;
    EXPECT_EQ(placer.pieces_, c.pieces) << c.markup << " at " << c.width;
    EXPECT_EQ(layout.size(), c.size) << c.markup << " at " << c.width;
  }
}

TEST(MarkupLayout, BreaksLinesAtSeveralWidths) {
  expectLayouts({
      {"", 100, "$", {0, 0}},
      {"The quick brown fox", 0, "0:0-133@0 'The quick brown fox' |0,0| $", {133, 16}},
      {"The quick brown fox", 133, "0:0-133@0 'The quick brown fox' |0,0| $", {133, 16}},
      {"The quick brown fox", 70, "0:0-63@0 'The quick' 1:0-63@16 'brown fox' |0,0| $", {63, 32}},
      {"The quick brown fox",
       40,
       "0:0-21@0 'The' 1:0-35@16 'quick' 2:0-35@32 'brown' 3:0-21@48 'fox' |0,0| $",
       {35, 64}},
      // A word longer than the line breaks between characters, never inside one.
      {"abcdefghij xy",
       30,
       "0:0-28@0 'abcd' 1:0-28@16 'efgh' 2:0-14@32 'ij' 3:0-14@48 'xy' |0,0| $",
       {28, 64}},
      {"\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9",
       20,
       "0:0-14@0 '\xC3\xA9\xC3\xA9' 1:0-14@16 '\xC3\xA9\xC3\xA9' 2:0-7@32 '\xC3\xA9' |0,0| $",
       {14, 48}},
      // Spaces at a break are dropped; a space that still fits ends its piece.
      {"aaa   bbb", 35, "0:0-21@0 'aaa' 1:0-21@16 'bbb' |0,0| $", {21, 32}},
      {"<b>aaa </b>bbb", 35, "0:0-32@0 'aaa ' 1:0-21@16 'bbb' |0,0| $", {32, 32}},
      {"a<b>b</b> c", 0, "0:0-7@0 'a' 0:7-15@0 'b' 0:15-29@0 ' c' |0,0| $", {29, 16}},
      // Explicit line breaks, also at the start and the end, and one that
      // follows a wrap, which makes no empty line of its own.
      {"one<br/>two", 0, "0:0-21@0 'one' 1:0-21@16 'two' |0,0| $", {21, 32}},
      {"<br/>a<br/><br/>b<br/>",
       0,
       "0:0-0@0 '' 1:0-7@16 'a' 2:0-0@32 '' 3:0-7@48 'b' |0,0| $",
       {7, 64}},
      {"aaa <br/>bbb", 21, "0:0-21@0 'aaa' 1:0-21@16 'bbb' |0,0| $", {21, 32}},
      // Not even one character fits: the rest of the run is dropped.
      {"abc", 5, "|0,0| $", {0, 0}},
  });
}

// Paddings are in line heights; the left margin counts twice in the space of
// a line. Paragraphs stand a gap apart, and links keep their target on every
// piece.
TEST(MarkupLayout, ParagraphsMarginsAndLinks) {
  expectLayouts({
      {"<div style=\"padding-left:1;padding-right:0.5\">aaa bbb</div><div>c</div>",
       100,
       "0:16-65@0 'aaa bbb' |16,8| 1:0-7@24 'c' |0,0| $",
       {65, 40}},
      {"<div style=\"padding-left:1;padding-right:0.5\">aaa bbb</div>",
       80,
       "0:16-37@0 'aaa' 1:16-37@16 'bbb' |16,8| $",
       {37, 32}},
      {"<div style=\"padding-left:-1\">ab</div>", 0, "0:-16--2@0 'ab' |-16,0| $", {0, 16}},
      {"<span style=\"font-size:60\">a</span>b<br/><span style=\"font-size:240\">c</span>",
       0,
       "0:0-4@0 'a' 0:4-11@0 'b' 1:0-14@16 'c' |0,0| $",
       {14, 48}},
      {"go <a href=\"http://h/\">to the site</a>",
       60,
       "0:0-21@0 'go ' 0:21-35@0 http://h/->'to' 1:0-56@16 http://h/->'the site' |0,0| $",
       {56, 32}},
  });
}

// The estimate of pixels per byte carries from line to line, so a long text
// of even letters takes a few measurements a line, not one a character.
TEST(MarkupLayout, FitsLinesWithFewMeasurements) {
  std::string text;
  for (int word = 0; word < 2000; ++word)
    text += "word" + std::to_string(word % 10) + " ";
  Placer placer;
  Markup::Layout layout(&placer, 400);
  ASSERT_TRUE(Markup::parser().parse(text.c_str(), &layout));
  int lines = layout.size().height / 16;
  EXPECT_EQ(lines, 2000 / 9 + 1); // nine words of 6 characters fit into 400 pixels
  EXPECT_LT(placer.measures_, 4 * lines);
}

} // namespace
