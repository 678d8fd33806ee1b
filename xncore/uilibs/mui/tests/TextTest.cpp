// Marked-up texts on the headless binding: links kept in text order and
// followed by perform() or by a click on them, the measure of the laid-out
// text, the alignment of its lines, the two helpers, describe(), and that no
// event is raised.
#include "EventCounter.h"
#include "FollowedLinks.h"
#include "HeadlessForm.h"

#include "mui/MuText.h"
#include "mui/headless/MuTextHeadless.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

class Text : public HeadlessForm {
protected:
  MuTextHeadless* make(const char* markup, plat::Markup::LinkCallback* callback) {
    return static_cast<MuTextHeadless*>(MuText::create(dialog.get(), "t", markup, callback, false));
  }
  FollowedLinks followed;
};

constexpr const char* twoLinks =
    "See <a href=\"https://example.org/a\">the first</a> and <a href=\"app://second\">x</a>.";

TEST_F(Text, PerformFollowsALinkByItsPlaceInTheText) {
  EventCounter counter;
  dialog->addObserver(&counter);
  MuText* text = make(twoLinks, &followed);
  EXPECT_THAT(text->links(), testing::ElementsAre("https://example.org/a", "app://second"));
  EXPECT_TRUE(text->perform("click", "1"));
  EXPECT_TRUE(text->perform("click", "0"));
  EXPECT_FALSE(text->perform("click", "2"));
  EXPECT_FALSE(text->perform("click", "-1"));
  EXPECT_FALSE(text->perform("click", nullptr));
  EXPECT_FALSE(text->perform("select", "0"));
  EXPECT_THAT(followed.urls, testing::ElementsAre("app://second", "https://example.org/a"));
  // Without a callback there is nowhere to go.
  EXPECT_FALSE(make(twoLinks, nullptr)->perform("click", "0"));
  // A disabled text is no obstacle: following a link changes nothing in it.
  text->setEnabled(false);
  EXPECT_TRUE(text->perform("click", "0"));
  EXPECT_EQ(counter.total, 0);
  dialog->removeObserver(&counter);
}

TEST_F(Text, EachTextBringsItsOwnLinksAndInvalidMarkupHasNone) {
  MuText* text = make(twoLinks, &followed);
  text->setText("<a href=\"one\">1</a>");
  EXPECT_THAT(text->links(), testing::ElementsAre("one"));
  text->setText("<p>not ours</p>");
  EXPECT_TRUE(text->links().empty());
  EXPECT_EQ(text->minWidth(0), 0);
  text->setText(nullptr);
  EXPECT_TRUE(text->links().empty());
  EXPECT_EQ(text->minHeight(100), 0);
}

TEST_F(Text, AClickOnALinkFollowsItAndAClickBesideItDoesNot) {
  MuTextHeadless* text = make(twoLinks, &followed);
  text->setSize({1000, 100});
  const MarkupRuns runs = text->runs();
  ASSERT_EQ(runs.runs.size(), 5u);
  const Rect first = runs.runs[1].rect;
  EXPECT_EQ(first, Rect(4 * 7, 0, 13 * 7, 16)); // "See " then "the first"
  text->clickAt({first.tl.x + 2, 8});
  text->clickAt({2, 8});
  text->clickAt({first.br.x + 100, 8});
  EXPECT_THAT(followed.urls, testing::ElementsAre("https://example.org/a"));
}

TEST_F(Text, MeasuresTheLaidOutText) {
  // Seven pixels a code point, eight in bold; lines of 16.
  MuText* text = make("<b>ab</b> cd", nullptr);
  EXPECT_EQ(text->minWidth(0), 2 * 8 + 3 * 7);
  EXPECT_EQ(text->minHeight(1000), 16);
  EXPECT_EQ(text->minHeight(20), 32); // "ab" and "cd" on lines of their own
  EXPECT_EQ(text->minHeight(0), 0);
  // A second paragraph adds half a line between.
  text->setText("<div>ab</div><div>cd</div>");
  EXPECT_EQ(text->minHeight(1000), 16 + 8 + 16);
}

TEST_F(Text, LinesGoWhereTheirParagraphAlignsThem) {
  MuTextHeadless* text = make("", nullptr);
  text->setSize({100, 100});
  const struct {
    const char* markup;
    int left;
  } cases[] = {
      {"<div style=\"text-align:left\">ab</div>", 0},
      {"<div style=\"text-align:center\">ab</div>", (100 - 14) / 2},
      {"<div style=\"text-align:right\">ab</div>", 100 - 14},
      // A margin of one line height counts once.
      {"<div style=\"padding-left:1\">ab</div>", 16},
      {"<div style=\"text-align:right;padding-right:1\">ab</div>", 100 - 14 - 16},
  };
  for (const auto& c : cases) {
    text->setText(c.markup);
    const MarkupRuns runs = text->runs();
    ASSERT_EQ(runs.runs.size(), 1u) << c.markup;
    EXPECT_EQ(runs.runs[0].rect.tl.x, c.left) << c.markup;
    EXPECT_EQ(runs.runs[0].rect.width(), 14) << c.markup;
  }
}

TEST_F(Text, TheHelpersMakeSelectableTextsWithoutLinks) {
  MuText* plain = MuText::createPlain(dialog.get(), "plain", "a<b & \"c\"");
  EXPECT_STREQ(plain->label(), "a&lt;b &amp; &quot;c&quot;");
  EXPECT_TRUE(plain->isSelectable());
  EXPECT_EQ(plain->linkCallback(), nullptr);
  MuText* block = MuText::createDiv(dialog.get(), "div", "<a href=\"x\">y</a>");
  EXPECT_STREQ(block->label(), "<div style=\"text-align:right\"><a href=\"x\">y</a></div>");
  EXPECT_THAT(block->links(), testing::ElementsAre("x"));
  EXPECT_FALSE(block->perform("click", "0"));
}

TEST_F(Text, DescribesItsLinks) {
  MuText* text = make(twoLinks, &followed);
  EXPECT_THAT(text->describe().get(),
              testing::EndsWith("element Text\n0 https://example.org/a\n1 app://second\n"));
  EXPECT_THAT(text->describe().get(), testing::HasSubstr("label See <a href="));
  EXPECT_STREQ(text->typeName(), "text");
}

} // namespace
} // namespace mui::test
