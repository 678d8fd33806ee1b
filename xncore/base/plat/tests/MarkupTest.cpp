// The markup language: the grammar and its styles as a handler sees them, the
// refusals and their log line, stripping, the builders, and that escaped text
// always comes back as the text.
#include "plat/Markup.h"

#include "Capture.h"

#include "plat/MarkupBuilders.h"
#include "plat/MarkupEscape.h"
#include "plat/MarkupStripper.h"
#include "plat/utf8.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using plat::Markup;

std::string describe(const Markup::Style& style) {
  std::string text;
  if (style.weight_ != Markup::Style::normalWeight)
    text += " w" + std::to_string(style.weight_);
  if (style.size_ != Markup::Style::normalSize)
    text += " s" + std::to_string(style.size_);
  if (style.flags_)
    text += " f" + std::to_string(style.flags_);
  if (!style.colour_.isNull())
    text += " c" + std::string(style.colour_.get());
  return text;
}

// Every event as text: "{alignment [L.. R..]", "'run' style", "href->'run'",
// "}" or "}." for the last paragraph, "$" for the end.
class Recorder : public Markup::Handler {
public:
  void beginParagraph(std::int32_t alignment, float left, float right) override {
    events_ += "{" + std::to_string(alignment);
    if (left != 0 || right != 0)
      events_ += " L" + number(left) + " R" + number(right);
  }
  void endParagraph(bool isLast) override { events_ += isLast ? " }." : " } "; }
  void text(const Markup::Style& style, const char* text) override {
    events_ += " '" + std::string(text) + "'" + describe(style);
  }
  void link(const Markup::Style& style, const char* href, const char* text) override {
    events_ += " " + std::string(href) + "->'" + text + "'" + describe(style);
  }
  void end() override { events_ += " $"; }

  std::string events_;

private:
  static std::string number(float value) {
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
      text.pop_back();
    return text;
  }
};

std::string eventsOf(const char* markup) {
  Recorder recorder;
  EXPECT_TRUE(Markup::parser().parse(markup, &recorder)) << markup;
  return recorder.events_;
}

TEST(Markup, ParagraphsRunsAndStyles) {
  struct Case {
    const char* markup;
    const char* events;
  } cases[] = {
      {"", " $"},
      {"a<b>b</b>c", "{0 'a' 'b' w700 'c' }. $"},
      {"<i><u>x</u>y</i><I>z</I>", "{0 'x' f3 'y' f1 'z' f1 }. $"},
      // A span or div leaves the default style behind, even inside a "b".
      {"<b>x<span style=\"color:red\">y</span>z</b>", "{0 'x' w700 'y' w700 cred 'z' }. $"},
      {"<div style=\"text-align:center\">x</div><div>y</div>", "{1 'x' } {0 'y' }. $"},
      {"<div style=\"TEXT-ALIGN: Right;padding-left:1.5; padding-right:2em\">x</div>",
       "{2 L1.5 R2 'x' }. $"},
      {"<div></div>a<div style=\"text-align:justify\">b</div>c",
       "{0 } {0 'a' } {3 'b' } {0 'c' }. $"},
      {"<font color=\"red\" size=\"150\">x</font>y", "{0 'x' s150 cred 'y' }. $"},
      {"<font size=\"big\">x</font>", "{0 'x' s0 }. $"},
      {"<span style=\"font-size:100%\">a</span><span style=\"font-size:75%\">b</span>"
       "<span style=\"font-size:33%\">c</span><span style=\"font-size:12.5%\">d</span>"
       "<span style=\"font-size:90\">e</span><span style=\"font-size:9pt\">f</span>",
       "{0 'a' 'b' s90 'c' s40 'd' s15 'e' s90 'f' }. $"},
      // A weight must be a number; background-color is read as the text colour.
      {"<SPAN STYLE=\"font-weight:bold\">x</SPAN><span style=\"font-weight:300\">y</span>",
       "{0 'x' w0 'y' w300 }. $"},
      {"<span style=\"background-color:#fff; font-style:italic;text-decoration:underline\">x"
       "</span><span style=\"font-style:italic;font-style:normal\">y</span>",
       "{0 'x' f3 c#fff 'y' }. $"},
      {"<b>x</b> <b>y</b>\n", "{0 'x' w700 ' ' 'y' w700 '\n' }. $"},
      {"<br/>x<br/>y<br/>", "{0 '\n' 'x\n' 'y\n' }. $"},
      // The first item of a list is at the start of its paragraph: no bullet.
      {"<ul><li>one</li><li>two</li></ul>", "{0 'one\n\xE2\x80\xA2 ' 'two' }. $"},
      {"x<br/><li>y</li>", "{0 'x\n\xE2\x80\xA2 ' 'y' }. $"},
      {"&lt;&amp;&gt;&quot;&apos;&#x4E2D;&#65;<!-- note -->", "{0 '<&>\"'\xE4\xB8\xAD"
                                                              "A' }. $"},
      {"<a href=\"http://h/?a=1&amp;b=2\" target=\"x\">go</a>",
       "{0 http://h/?a=1&b=2->'go' f4 }. $"},
      // Only text directly inside "a" is the link.
      {"<A HREF=\"u\" style=\"color:blue\">x<b>y</b></A>",
       "{0 u->'x' f4 cblue 'y' w700 cblue }. $"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(eventsOf(c.markup), c.events) << c.markup;
}

TEST(Markup, InvalidMarkupIsLoggedAndDeliversNothing) {
  struct Case {
    const char* markup;
    const char* message;
  } cases[] = {
      {"<a>x</a>", "Invalid hyperlink spec!"},
      {"<b>ok</b><p>x</p>", "Unexpected tag p"},
      {"<b class=\"c\">x</b>", "Unexpected attribute (class = c)"},
      {"<br clear=\"all\"/>", "Unexpected attribute (clear = all)"},
      {"<body>x</body>", "Unexpected tag body"},
      {"<b>x", "XML error 3:30 Error: Unmatched end tag"},
      {"x</b>", "XML error 3:27 Error: Unmatched end tag"},
      {"a & b", "XML error 3:28 Error: Unknown character entity"},
      {"<b>x</i>", "XML error 3:30 Error: Unmatched end tag"},
      {"x <3", "XML error 3:28 Error: Missing start tag name"},
  };
  for (const Case& c : cases) {
    plattest::LogCapture capture;
    Recorder recorder;
    EXPECT_FALSE(Markup::parser().parse(c.markup, &recorder)) << c.markup;
    EXPECT_EQ(recorder.events_, "") << c.markup;
    EXPECT_FALSE(Markup::parser().parse(c.markup, nullptr)) << c.markup;
    std::string line =
        "0 Invalid markup (" + std::string(c.message) + "): ### " + c.markup + " ###";
    EXPECT_EQ(capture.lines("MarkupParser"), std::vector<std::string>(2, line));
  }
  EXPECT_TRUE(Markup::parser().parse("<b>fine</b>", nullptr));
}

TEST(Markup, StripperGivesThePlainText) {
  struct Case {
    const char* markup;
    const char* text;
  } cases[] = {
      {nullptr, ""},
      {"<div>Hello <b>world</b></div><div>next</div>", "Hello worldnext"},
      {"x<br/>y<ul><li>a</li><li>b</li></ul>", "x\ny\n\xE2\x80\xA2 a\n\xE2\x80\xA2 b"},
      {"see <a href=\"u\">the &lt;site&gt;</a>", "see the <site>"},
      {"<p>refused</p>", ""},
  };
  for (const Case& c : cases)
    EXPECT_STREQ(Markup::Stripper(c.markup).get(), c.text) << (c.markup ? c.markup : "null");
  Markup::Stripper stripper("a");
  stripper.link(Markup::Style(), "http://h/", nullptr); // a link without text shows its target
  EXPECT_STREQ(stripper.get(), "ahttp://h/");
}

TEST(Markup, BuildersWriteWhatTheParserReads) {
  Markup::Style fancy;
  fancy.flags_ = Markup::Style::italic | Markup::Style::underline;
  fancy.size_ = 60;
  fancy.weight_ = 700;
  fancy.colour_ = plat::String("#123");
  fancy.backgroundColour_ = plat::String("yellow");
  Markup::Style large;
  large.size_ = 150;
  using plat::DString;
  auto build = [](auto write) {
    DString out;
    write(out);
    return std::string(out.get());
  };
  struct Case {
    std::string built;
    const char* markup;
  } cases[] = {
      {build([&](DString& o) {
         o.append("<i>");
         plat::markupAppend(o, "a<b>&\"'\xFF");
       }),
       "<i>a&lt;b&gt;&amp;&quot;&apos;\xEF\xBF\xBD"},
      {build([&](DString& o) { plat::markupBold(o, "x<", nullptr, 120); }), "<b>x&lt;</b>"},
      {build([&](DString& o) { plat::markupBold(o, "x", "red", 144); }),
       "<span style=\"font-size:120%;font-weight:400;color:red;\"><b>x</b></span>"},
      {build([&](DString& o) { plat::markupSpan(o, "<i>x</i>", nullptr, 120); }), "<i>x</i>"},
      {build([&](DString& o) { plat::markupSpan(o, "<i>x</i>", Markup::Style()); }), "<i>x</i>"},
      {build([&](DString& o) { plat::markupTextSpan(o, "a&b", fancy); }),
       "<span style=\"font-size:50%;font-weight:700;font-style:italic;text-decoration:underline;"
       "color:#123;background-color:yellow;\">a&amp;b</span>"},
      {build([&](DString& o) { plat::markupTextSpan(o, "<", nullptr, 100); }),
       "<span style=\"font-size:83%;font-weight:400;\">&lt;</span>"},
      {build([&](DString& o) { plat::markupLink(o, nullptr, "http://h/?a=1&b=2", nullptr); }),
       "<a href=\"http://h/?a=1&amp;b=2\">http://h/?a=1&amp;b=2</a>"},
      {build([&](DString& o) { plat::markupLink(o, "go", "u", "blue"); }),
       "<a href=\"u\" style=\"color:blue\">go</a>"},
      {build([&](DString& o) { plat::markupLink(o, "go", "u", Markup::Style()); }),
       "<a href=\"u\" style=\"font-size:100%;font-weight:400;\">go</a>"},
      {build([&](DString& o) { plat::markupDiv(o, Markup::alignCenter, nullptr); }),
       "<div style=\"text-align:center\">"},
      {build([&](DString& o) { plat::markupDiv(o, Markup::alignJustify, &large); }),
       "<div style=\"text-align:justify;font-size:125%;font-weight:400;\">"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(c.built, c.markup);

  // Read back, the style is the one written, but for the background colour,
  // which the parser takes for the text colour.
  EXPECT_EQ(eventsOf(cases[5].markup), "{0 'a&b' w700 s60 f3 cyellow }. $");
  EXPECT_EQ(eventsOf(cases[7].markup), "{0 http://h/?a=1&b=2->'http://h/?a=1&b=2' f4 }. $");
  DString block;
  plat::markupDiv(block, Markup::alignRight, &large);
  plat::markupLink(block, "x", "u", nullptr);
  block.append("</div>");
  EXPECT_EQ(eventsOf(block.get()), "{2 u->'x' s150 f4 }. $");
}

TEST(Markup, CssSizesRoundHalvesAwayFromZero) {
  struct Case {
    std::int32_t size;
    const char* css;
  } cases[] = {{120, "font-size:100%;font-weight:400;"},
               {1, "font-size:1%;font-weight:400;"},
               {3, "font-size:3%;font-weight:400;"},
               {-3, "font-size:-3%;font-weight:400;"},
               {0, "font-size:0%;font-weight:400;"},
               {2147483647, "font-size:1789569706%;font-weight:400;"}};
  for (const Case& c : cases) {
    Markup::Style style;
    style.size_ = c.size;
    EXPECT_STREQ(plat::styleToCss(style).get(), c.css) << c.size;
  }
}

// Any text, escaped, parses to one run of exactly that text (repaired where
// it was not valid UTF-8): whitespace, entities and all.
TEST(Markup, EscapedTextParsesBackToTheText) {
  std::mt19937 random(20240);
  const int pieces[] = {'<',  '>', '&', '"', '\'', ' ',    '\t',    '\n',
                        '\r', ';', '#', 'a', 0xE9, 0x4E2D, 0x1F600, 0xFFFD};
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (int length = static_cast<int>(random() % 24); length > 0; --length) {
      switch (random() % 4) {
      case 0:
        text += static_cast<char>(random() % 0xFF + 1); // any byte, valid or not
        break;
      case 1: {
        char encoded[4];
        char* end = encoded;
        plat::encodeUtf8(pieces[random() % std::size(pieces)], end);
        text.append(encoded, end);
        break;
      }
      default: {
        char encoded[4];
        char* end = encoded;
        int codePoint = static_cast<int>(random() % plat::maxCodePoint) + 1;
        if (codePoint >= 0xD800 && codePoint <= 0xDFFF)
          codePoint = ' ';
        plat::encodeUtf8(codePoint, end);
        text.append(encoded, end);
      }
      }
    }
    plat::String escaped = plat::escapeMarkup(text.c_str());
    ASSERT_STREQ(Markup::Stripper(escaped.get()).get(), plat::repairUtf8(text.c_str()).get())
        << escaped.get();
  }
}

} // namespace
